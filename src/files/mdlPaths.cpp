#include "files/mdlPaths.h"

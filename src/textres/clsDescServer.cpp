#include "textres/clsDescServer.h"

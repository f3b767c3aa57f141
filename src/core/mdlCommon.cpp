#include "core/mdlCommon.h"

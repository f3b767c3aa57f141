#include "lornfd/lasterror.h"

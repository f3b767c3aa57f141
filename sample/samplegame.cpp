#include "lornfd/lornfd.h"

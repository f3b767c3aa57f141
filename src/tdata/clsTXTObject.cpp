#include "tdata/clsTXTObject.h"

#include "keshvfs/keshvfs.h"

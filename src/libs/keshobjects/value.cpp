#include "keshobjects/value.h"

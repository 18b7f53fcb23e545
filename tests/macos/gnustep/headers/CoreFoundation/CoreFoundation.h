// GNUstep's Foundation has no CoreFoundation below it: the declarations are our own.
#include "../../../facade/CoreFoundation/CoreFoundation.h"

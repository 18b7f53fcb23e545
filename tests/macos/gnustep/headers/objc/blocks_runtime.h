// What GNUstep asks for under this name, where the compiler knows blocks.
#pragma once

#include <Block.h>

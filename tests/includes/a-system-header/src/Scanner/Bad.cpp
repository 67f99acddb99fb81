#include "Platform/Win32/Names.h"

#include "Grid.h"

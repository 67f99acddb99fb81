#include "Export/GridExport.h"

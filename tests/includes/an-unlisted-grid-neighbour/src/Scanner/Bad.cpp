#include "Export/PrtPreview.h"

#include "Screen/MainForm.h"

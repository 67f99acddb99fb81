#include <Windows.h>

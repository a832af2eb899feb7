#include "window/Slots.h"

CPtrnDisp* AppliWnd;
CPtrnDisp* SystmWnd;
int SystemWnd;

#include "config/Settings.h"

char ProfName[257];
char ProjPath[257];
int Language;

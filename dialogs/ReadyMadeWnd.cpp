#include "dialogs/ReadyMadeWnd.h"

#include "dialogs/PtrnMente.h"
#include "pattern/ItemParm.h"
#include "pattern/PtrnHedr.h"
#include "pattern/ScreenClass.h"

CPtrnDisp* tessary::NewReadyMadeWnd(const char* name)
{
    PTRNHEDR header;
    if (!ReadHedr(name, &header))
        return nullptr;
    switch (header.Parm1[HEDR_CLASS]) {
    case SCREEN_MAINTENANCE:
        return new CPtrnMente;
    default:
        return new CPtrnDisp;
    }
}

#include "window/FieldText.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "pattern/ItemParm.h"

#include <algorithm>

namespace tessary
{

void RefreshFieldText(PTRNDATA* item)
{
    if (item->Type != PTRN_CHAR)
        return;
    const char* text = Get_sData(item->DataNo, nullptr, 0);
    const int width = std::clamp(item->Parm[FIELD_WIDTH], 0, SIZE_PTRNTEXT);
    CopyText(item->Text, EucCut(text, static_cast<std::size_t>(width)) + 1, text);
}

} // namespace tessary

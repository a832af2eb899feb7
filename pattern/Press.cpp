#include "pattern/Press.h"

#include "pattern/items/ItemDraw.h"
#include "pattern/ItemTable.h"

namespace tessary
{

namespace
{

/// The item linked with another by its data number, 0 included: of the first type (by number) of the kind of
/// which there is one, the first in the file.
template <class IsOfKind> bool FindLinked(CPtrnData& data, int dataNo, IsOfKind isOfKind, PTRNDATA* linked)
{
    for (const ItemClass& type : ItemClasses())
        if (isOfKind(type) && data.ReadPtrnData(dataNo, type.type, linked))
            return true;
    return false;
}

bool OpensEntry(const PTRNDATA& field)
{
    return IsUsable(field) && field.Parm[FIELD_KEYENTRY] == 1;
}

/// What a usable control does.
int Operate(const PTRNDATA& control)
{
    if (IsLocked(&control))
        return PRESS_NOTHING;
    FindItemClass(control.Type)->operate(control);
    return PRESS_ACTION;
}

} // namespace

void StartRepeat(CPtrnData& data, const PTRNDATA& item, int part)
{
    data.RepeatFlag = REPEAT_WAITING;
    data.RepeatTimr = 0;
    data.RepeatMode = part;
    data.RepeatPtrn = item;
}

int PressShape(CPtrnData& data, POINT, PTRNDATA* item)
{
    PTRNDATA field;
    const auto isField = [](const ItemClass& type) { return type.entry; };
    if (!FindLinked(data, item->DataNo, isField, &field) || !OpensEntry(field))
        return PRESS_ACTION;
    *item = field;
    return PRESS_KEYENTRY;
}

int PressField(CPtrnData& data, POINT point, PTRNDATA* item)
{
    return OpensEntry(*item) ? static_cast<int>(PRESS_KEYENTRY) : PressLabel(data, point, item);
}

int PressLabel(CPtrnData& data, POINT, PTRNDATA* item)
{
    PTRNDATA control;
    const auto isControl = [](const ItemClass& type) { return type.operate != nullptr; };
    if (!FindLinked(data, item->DataNo, isControl, &control) || !IsUsable(control))
        return PRESS_ACTION;
    *item = control;
    return Operate(control);
}

int PressControl(CPtrnData&, POINT, PTRNDATA* item)
{
    // A disabled control keeps its value, but its action is carried out.
    return IsUsable(*item) ? Operate(*item) : static_cast<int>(PRESS_ACTION);
}

} // namespace tessary

using namespace tessary;

int CPtrnData::LButtonDown(POINT point, PTRNDATA* item)
{
    const ItemClass* type = FindItemClass(item->Type);
    return type && type->press ? type->press(*this, point, item) : static_cast<int>(PRESS_ACTION);
}

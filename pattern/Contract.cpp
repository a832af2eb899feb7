// The members that stand for single types by number, as screen classes may call them: each goes on to the
// record of its type. One eraser or hit test may serve several types; it is that of the first.
#include "pattern/ItemTable.h"
#include "pattern/PtrnData.h"

using tessary::FindItemClass;

void CPtrnData::DispPtrnData01(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_GBOX)->draw(*this, draw, item, 0);
}

void CPtrnData::DispPtrnData02(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_LINE)->draw(*this, draw, item, 0);
}

void CPtrnData::DispPtrnData03(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_RECT)->draw(*this, draw, item, 0);
}

void CPtrnData::DispPtrnData04(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_CRCL)->draw(*this, draw, item, 0);
}

void CPtrnData::DispPtrnData05(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_BARG)->draw(*this, draw, item, 0);
}

void CPtrnData::DispPtrnData06(CDraw* draw, PTRNDATA* item, int updt)
{
    FindItemClass(PTRN_FCHR)->draw(*this, draw, item, updt);
}

void CPtrnData::DispPtrnData07(CDraw* draw, PTRNDATA* item, int updt)
{
    FindItemClass(PTRN_CHAR)->draw(*this, draw, item, updt);
}

void CPtrnData::DispPtrnData08(CDraw* draw, PTRNDATA* item, int updt)
{
    FindItemClass(PTRN_NUMR)->draw(*this, draw, item, updt);
}

void CPtrnData::DispPtrnData09(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_BUTN)->draw(*this, draw, item, 0);
}

void CPtrnData::DispPtrnData10(CDraw* draw, PTRNDATA* item, int updt)
{
    FindItemClass(PTRN_RDIO)->draw(*this, draw, item, updt);
}

void CPtrnData::DispPtrnData11(CDraw* draw, PTRNDATA* item, int updt)
{
    FindItemClass(PTRN_CHCK)->draw(*this, draw, item, updt);
}

void CPtrnData::DispPtrnData12(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_BMAP)->draw(*this, draw, item, 0);
}

void CPtrnData::DispPtrnData13(CDraw* draw, PTRNDATA* item, int updt)
{
    FindItemClass(PTRN_MARK)->draw(*this, draw, item, updt);
}

void CPtrnData::DispPtrnData14(CDraw* draw, PTRNDATA* item, int updt)
{
    FindItemClass(PTRN_SBAR)->draw(*this, draw, item, updt);
}

void CPtrnData::DispPtrnData15(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_SPIN)->draw(*this, draw, item, 0);
}

void CPtrnData::ClerPtrnData01(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_GBOX)->erase(draw, item);
}

void CPtrnData::ClerPtrnData02(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_LINE)->erase(draw, item);
}

void CPtrnData::ClerPtrnData03(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_RECT)->erase(draw, item);
}

void CPtrnData::ClerPtrnData04(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_CRCL)->erase(draw, item);
}

void CPtrnData::ClerPtrnData06(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_FCHR)->erase(draw, item);
}

void CPtrnData::ClerPtrnData10(CDraw* draw, PTRNDATA* item)
{
    FindItemClass(PTRN_RDIO)->erase(draw, item);
}

void CPtrnData::FlikPtrnData06(CDraw* draw, PTRNDATA* item, int phase)
{
    FindItemClass(PTRN_FCHR)->blink(draw, item, phase);
}

void CPtrnData::FlikPtrnData13(CDraw* draw, PTRNDATA* item, int phase)
{
    FindItemClass(PTRN_MARK)->blink(draw, item, phase);
}

int CPtrnData::TestPtrnData01(POINT point, PTRNDATA* item)
{
    return FindItemClass(PTRN_GBOX)->hit(point, item);
}

int CPtrnData::TestPtrnData02(POINT point, PTRNDATA* item)
{
    return FindItemClass(PTRN_LINE)->hit(point, item);
}

int CPtrnData::TestPtrnData06(POINT point, PTRNDATA* item)
{
    return FindItemClass(PTRN_FCHR)->hit(point, item);
}

int CPtrnData::TestPtrnData10(POINT point, PTRNDATA* item)
{
    return FindItemClass(PTRN_RDIO)->hit(point, item);
}

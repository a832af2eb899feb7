// The code table, and the cells that it makes.
#include "comndata/CodeTable.h"
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "comndata/PtrnCode.h"
#include "fuzz/Sections.h"
#include "fuzz/Target.h"

#include <algorithm>

namespace
{

void Use(int no)
{
    char name[tessary::SIZE_DTNONAME];
    ConvertDtno(no, name);
    Set_fData(no, 1.5F, __FILE__, __LINE__);
    Set_sData(no, "text", __FILE__, __LINE__);
    Set_wData(no, 3, __FILE__, __LINE__);
    Get_sData(no, __FILE__, __LINE__);
    tessary::FindCode(no);
}

void Run(const std::string& bytes)
{
    fuzz::Project::own().write("ProjPath/PtrnCode", bytes);
    LoadCodeData();
    fuzz::promise(PtrnDataNo >= 0 && PtrnDataNo <= tessary::CONT_COMNDATA, "the store has its bounds");
    for (int i = 0; i < std::min(PtrnRecd, 50); ++i) {
        const PTRNCODE& row = PtrnCode[i];
        const std::string code = tessary::CodeOf(row);
        for (const int offset : {0, 1, -1, row.DataCount, row.DataNo})
            ConvertDtno(code.c_str(), offset);
        for (const int no :
             {row.DataNo, row.DataNo + (row.DataNo < 0 ? 1 : -1), row.DataCount, PtrnDataNo - i})
            Use(no);
    }
    fuzz::LoadSection("codes", bytes);
}

const fuzz::Target TARGET("codes", Run);

} // namespace

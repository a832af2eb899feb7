#include "comndata/MesgData.h"

#include "base/EucText.h"
#include "base/Limits.h"
#include "comndata/Cells.h"
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "comndata/PtrnCode.h"
#include "comndata/TableFile.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "log/Category.h"
#include "log/LogText.h"

#include <algorithm>
#include <deque>

using namespace tessary;

MESGDATA* MesgData[CONT_MESGDATA];

namespace
{

std::deque<MESGDATA> rows; // what MesgData points at; a deque never moves its rows

/// Makes the cell of the message's code show the message. The text stays the row's.
void BindToCell(MESGDATA& row, int number)
{
    const int no = ConvertDtno(row.ID_Code, row.ID_No);
    if (no == -1)
        LogText(CATEGORY_MESSAGES, __FILE__, __LINE__, "MesgData Error [%d / %s / %d]", number, row.ID_Code,
                row.ID_No);
    else
        ShareText(no, row.MesgText);
}

} // namespace

void LoadMesgData()
{
    ExitMesgData();
    char path[SIZE_PATH + 1];
    if (!TablePath(path, "MesgData", CATEGORY_MESSAGES))
        return;

    const int language = Language == 0 || Language == 1 ? Language : LANGUAGE_COUNT - 1;
    for (int number = 1; number <= CONT_MESGDATA; number++) {
        char code[PROFILE_FIELD_SIZE];
        int offset;
        char text[LANGUAGE_COUNT][PROFILE_FIELD_SIZE];
        if (ProfileRead(path, "MESGDATA", "MESG", number, "sisss", code, &offset, text[0], text[1], text[2],
                        nullptr) == 0)
            continue;

        MESGDATA& row = rows.emplace_back();
        code[EucCut(code, SIZE_ID_CODE)] = '\0';
        CopyText(row.ID_Code, code);
        row.ID_No = offset;
        CopyText(row.MesgText, text[language]);
        if (row.ID_Code[0])
            BindToCell(row, number);
        MesgData[number - 1] = &row;
    }
}

void ExitMesgData()
{
    for (const MESGDATA& row : rows)
        ReleaseText(ConvertDtno(row.ID_Code, row.ID_No), row.MesgText);
    rows.clear();
    std::fill(std::begin(MesgData), std::end(MesgData), nullptr);
}

LPTSTR Get_MesgData(int no, const char* file, int line)
{
    if (no >= 1 && no <= CONT_MESGDATA && MesgData[no - 1])
        return MesgData[no - 1]->MesgText;
    LogText(CATEGORY_MESSAGES, file, line, "Message No Error [%d]", no);
    static char none[1];
    none[0] = '\0';
    return none;
}

void Get_MesgData(int no, char* text, const char* file, int line)
{
    CopyText(text, sizeof MESGDATA::MesgText, Get_MesgData(no, file, line));
}

void DispErrorMesg(int no)
{
    DispErrorMesg(Get_MesgData(no, nullptr, 0));
}

void DispErrorMesg(const char* text)
{
    if (!text || !*text)
        return;
    Set_Color(DTNO_SYSEROR, 1, nullptr, 0);
    Set_sData(DTNO_SYSEROR, text, nullptr, 0);
}

void ClearErrorMesg()
{
    Set_Color(DTNO_SYSEROR, 0, nullptr, 0);
}

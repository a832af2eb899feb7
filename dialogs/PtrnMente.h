// The maintenance screen: browses and edits the common data, code by code.
//
// The pattern "メンテナンス" supplies the items; their cells are DTNO_MENTE to DTNO_MENTE + 61:
//   20..29  list of codes: text of a line; colour selection 1 for the selected code
//   30..39  list of data numbers of that code: offset within the code
//   40..49  log flags; the items send their data number to the window
//   50..59  words as numbers      60..69  numbers      70..79  texts; edited by keyboard entry
//   80, 81  scroll bars of the two lists; they send their data number too
#pragma once

#include "window/PtrnDisp.h"

// What is selected and shown outlives the window.
extern std::int32_t SlctCode; ///< selected row of the code table; 0 until the screen was opened first
extern std::int32_t LineNo1;  ///< the list of codes shows rows LineNo1 + 1 to LineNo1 + 10
extern std::int32_t LineNo2;  ///< first offset in the list of data numbers

namespace tessary
{

/// Forgets what was selected and shown.
void PtrnMenteExit();

} // namespace tessary

/// Row 0 of the code table is never listed. Whatever lies outside the table, the selected code or the store
/// is neither shown nor changed.
class CPtrnMente : public CPtrnDisp
{
  public:
    void PtrnInitFunc() override;
    /// Refills the list of data numbers, so that the values shown stay live.
    void PtrnTimrFunc() override;
    /// Wipes the fields of lines that show nothing any more.
    void PtrnDispFunc(CDraw* draw, int mode) override;
    /// Selects a code, changes a log flag (and writes "PtrnFlag" at once), or moves a list.
    void PtrnMesgFunc(int no) override;
    int PtrnKeyStart(PTRNDATA* item) override;
    /// Return writes the entered word, number or text to the cell shown in that line.
    void PtrnKeyFunc(int key, int state, PTRNDATA* item) override;

    /// Selects a row of the code table. The code left behind remembers its place in the list of data numbers.
    /// @param row  below 1 or beyond the table: row 1
    void SlctDispData(int row);
    /// Fills the list of codes. @param first  row before the first one shown
    void SetDispData1(int first);
    /// Fills the list of data numbers. Lines beyond the code's last number are disabled.
    /// @param first  offset of the first line
    void SetDispData2(int first);

  private:
    bool IsWiped[10] = {}; ///< by line of the list of data numbers

    void WipeLine(CDraw* draw, int line);
};

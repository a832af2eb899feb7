// Writes pattern files for tests, byte by byte by its own code.
#pragma once

#include "base/Constants.h"
#include "pattern/ItemParm.h"
#include "tests/support/Project.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// One pattern file under construction. A line of a test reads like the item it describes:
///
///     Pattern("menu").title("Menu").size(320, 200)
///         .item(PTRN_RECT, 10, 10, 60, 40).parm(SHAPE_FILLED, 1).code("SPEED")
///         .item(PTRN_BUTN, 10, 60, 90, 80).text("Start").action(8, "main")
///         .save(project);
///
/// The calls between `item` and the next `item` describe that item. Defaults can be drawn as they stand:
/// - every colour parameter, of items and of the header, holds its own index as colour number
///   (text of a field 4..7, its background 8..11, clear colour 29, body of the pattern 19);
/// - fonts are 0; a mark's numbers are 350..353, the built-in ones, which need no mark table;
/// - lines, outlines and scroll-bar frames are 1 wide, edges of group boxes and buttons 2;
/// - a field is 5 bytes wide without decimals, fill, grouping, hexadecimal or key entry;
/// - bar graph and spin button run from 0 to 100; a radio button stands for 1;
/// - a scroll bar is horizontal with arrow buttons only, 10 of 100 visible, steps 1 (line), 10 (page),
///   5 (trough), without roles;
/// - nothing is filled, backed, keyed or flickering; pass 0, no action, no code, no texts;
/// - the header is of kind 0, 320 x 240, without title bar, clock, band, frame and buttons.
class Pattern
{
  public:
    explicit Pattern(std::string name);

    // --- header --------------------------------------------------------------------------------
    Pattern& title(const std::string& everyLanguage);
    Pattern& title(const std::string& first, const std::string& second, const std::string& third);
    Pattern& size(int width, int height);
    Pattern& header(int index, std::int32_t value);  ///< HedrParm of Parm1
    Pattern& header2(int index, std::int32_t value); ///< Parm2
    Pattern& logo(const std::string& name);
    Pattern& bitmap(const std::string& name);

    // --- items ---------------------------------------------------------------------------------
    Pattern& item(int type, int x1, int y1, int x2, int y2);
    Pattern& item(int type, const RECT& corners);
    Pattern& parm(int index, std::int32_t value);
    Pattern& parm4(int first, std::int32_t c0, std::int32_t c1, std::int32_t c2, std::int32_t c3);
    Pattern& top(int pass = 1);
    Pattern& text(const std::string& everyLanguage);
    Pattern& text(const std::string& first, const std::string& second, const std::string& third);
    Pattern& code(const std::string& code, int offset = 0);
    Pattern& action(int code, const std::string& name = "");

    // --- what the records claim, for damaged and unusual files ---------------------------------
    Pattern& version(std::int32_t value);
    Pattern& reserved(std::int32_t value); ///< the reserved fields of header and items
    Pattern& claimItems(std::int32_t count);
    Pattern& claimTextSize(std::int32_t size);
    Pattern& rawTexts(const std::string& block); ///< the text block as it stands

    // --- result --------------------------------------------------------------------------------
    const std::string& name() const { return name_; }
    std::string bytes() const;
    /// Writes `<name>.ptn` into the project directory.
    const Pattern& save(Project& project) const;

  private:
    struct Item {
        std::int32_t type = 0;
        std::array<std::int32_t, 30> parm{};
        std::int32_t action = 0;
        std::int32_t offset = 0;
        std::array<std::string, 3> texts;
        std::string name;
        std::string code;
    };
    Item& last();

    std::string name_;
    std::array<std::int32_t, 30> parm1_{};
    std::array<std::int32_t, 10> parm2_{};
    std::array<std::string, 3> titles_;
    std::string logo_;
    std::string bitmap_;
    std::vector<Item> items_;
    std::int32_t version_ = 1;
    std::int32_t reserved_ = 0;
    std::optional<std::int32_t> count_;
    std::optional<std::int32_t> textSize_;
    std::optional<std::string> texts_;
};

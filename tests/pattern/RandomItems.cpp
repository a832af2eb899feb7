#include "tests/pattern/RandomItems.h"

#include "draw/Resource.h"
#include "pattern/ItemTable.h"
#include "tests/support/Canvas.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

using namespace tessary;

namespace
{

// Inside a box of 120 x 80: what is drawn outside an item's corners (thick outlines) finds place around it.
constexpr int MARGIN = 15;
constexpr int AREA_WIDTH = 90;
constexpr int AREA_HEIGHT = 50;
/// Cell of the larger of the two fonts.
constexpr int LARGEST_HALF = 12;

constexpr int NONE = -1;
const char* const BITMAPS[] = {"two.ppm", "four.ppm"};

int randomParm(const ParmSchema& parm, Random& random)
{
    switch (parm.kind) {
    case ParmKind::Font:
        return random.below(2); // those that are loaded
    case ParmKind::Choice:
        return random.pick(parm.choices).value;
    case ParmKind::Pixels:
    case ParmKind::Count:
        return random.between(parm.minimum, std::min(parm.maximum, random.oneIn(10) ? 98 : 6));
    case ParmKind::Real:
    case ParmKind::Message:
        return 0; // they are about entry, which draws nothing
    case ParmKind::Number:
        return random.between(std::max(parm.minimum, -20), std::min(parm.maximum, 100));
    default:
        return random.between(parm.minimum, parm.maximum);
    }
}

/// Everything but the corners, each parameter by its row of the schema.
void addParms(Pattern& pattern, const ItemClass& schema, Random& random)
{
    for (const ParmSchema& parm : schema.parms)
        for (int variant = 0; variant < parm.count; ++variant)
            pattern.parm(parm.index + variant, randomParm(parm, random));
    pattern.parm(PARM_CLEAR, random.below(CONT_COLR));
    if (schema.text == ItemText::Caption)
        pattern.text(randomText(random, 9));
    if (schema.text == ItemText::BitmapName)
        pattern.text(random.oneIn(5) ? "" : random.pick(BITMAPS));
}

void addColors(Pattern& pattern, int first, int count, Random& random)
{
    for (int i = 0; i < count; ++i)
        pattern.parm(first + i, random.below(CONT_COLR));
}

/// One number for all four colour selections.
void addSame(Pattern& pattern, int first, int value)
{
    pattern.parm4(first, value, value, value, value);
}

CellRules plainShape(Pattern& pattern, Random& random)
{
    CellRules rules;
    const bool filled = random.oneIn(2);
    pattern.parm(SHAPE_FILLED, filled).parm(SHAPE_WIDTH, random.below(6));
    if (filled)
        addColors(pattern, SHAPE_FILL4, 4, random);
    rules.hide = filled; // the eraser fills what the item itself does not paint
    return rules;
}

CellRules plainBarGraph(Pattern& pattern, Random& random, int x, int y)
{
    CellRules rules;
    pattern.parm4(PARM_X1, x, y, x + AREA_WIDTH, y + AREA_HEIGHT); // exchanged, a needle reaches outside
    const int frame = random.pick({0, 0, 1, 5});
    const int needle = random.below(6);
    const bool horizontal = random.oneIn(2);
    pattern.parm(BARG_FRAME_WIDTH, frame).parm(BARG_NEEDLE_WIDTH, needle).parm(BARG_HORIZONTAL, horizontal);
    rules.hide = frame == 0; // the frame's last column and row are not erased
    if (frame == 0 && needle % 2 && !horizontal)
        rules.hide = rules.value = false; // at the bottom it lies one row below what is painted behind it
    return rules;
}

CellRules plainFixedText(Pattern& pattern, Random& random)
{
    CellRules rules;
    const bool backed = random.oneIn(2);
    const std::string text = randomText(random, random.pick({0, 7}));
    pattern.parm(TEXT_BACKED, backed).text(text);
    rules.hide = backed || text.empty(); // the eraser paints a background
    rules.disable = text.empty();        // blanked is less than the box behind the text
    return rules;
}

/// Variable text or numeric field.
CellRules plainField(Pattern& pattern, Random& random)
{
    CellRules rules;
    const bool backed = random.oneIn(2);
    pattern.parm(TEXT_BACKED, backed);
    rules.hide = false; // the eraser paints as much as the text shown last, not the field
    rules.disable = false;
    rules.text = backed;
    rules.value = backed;
    return rules;
}

CellRules plainVariableText(Pattern& pattern, Random& random)
{
    pattern.parm(FIELD_WIDTH, random.between(1, AREA_WIDTH / LARGEST_HALF));
    return plainField(pattern, random);
}

CellRules plainNumericField(Pattern& pattern, Random& random)
{
    // Numbers that fit the field: what sticks out on the right is not painted over.
    CellRules rules = plainField(pattern, random);
    const int width = random.between(3, AREA_WIDTH / LARGEST_HALF);
    const int decimals = random.below(width - 1) / 2;
    const bool hexadecimal = random.oneIn(4);
    pattern.parm(FIELD_WIDTH, width).parm(FIELD_DECIMALS, decimals).parm(FIELD_HEX, hexadecimal);
    const int digits = hexadecimal ? width : width - 1 - (decimals ? decimals + 1 : 0);
    rules.highest = std::pow(hexadecimal ? 16.0F : 10.0F, static_cast<float>(std::min(digits, 5))) - 2.0F;
    rules.lowest = hexadecimal ? 0.0F : -rules.highest;
    rules.text = true; // only redraws the same number
    return rules;
}

CellRules plainButton(Pattern& pattern, Random& random, int x, int y)
{
    CellRules rules;
    const int width = random.between(AREA_WIDTH / 2, AREA_WIDTH);
    const std::string caption = randomText(random, 6);
    const int indent = random.between(-1, 15);
    pattern.parm4(PARM_X1, x, y, x + width, y + AREA_HEIGHT).parm(BUTN_WIDTH, random.below(6));
    pattern.text(caption).parm(BUTN_POST, indent);
    // A caption that reaches beyond the button stays when the button goes.
    const bool fits = static_cast<int>(caption.size()) * LARGEST_HALF + std::max(indent, 0) <= width;
    rules.hide = rules.disable = fits;
    return rules;
}

/// Radio button or check box.
CellRules plainCheck(Pattern& pattern, Random& random)
{
    CellRules rules;
    const bool backed = random.oneIn(2);
    const std::string label = random.oneIn(2) ? randomText(random, 4) : "";
    pattern.parm(CHECK_BACKED, backed).text(label);
    addColors(pattern, CHECK_BACK, 2, random);
    rules.value = backed;                                 // one mark over another shows both
    rules.hide = rules.disable = backed && label.empty(); // less is erased than the box behind a label
    return rules;
}

CellRules plainBitmap(Pattern& pattern, Random& random)
{
    CellRules rules;
    const bool keyed = random.oneIn(2);
    const bool missing = random.oneIn(5);
    pattern.parm(BMAP_KEYED, keyed).text(missing ? "none.ppm" : random.pick(BITMAPS));
    rules.hide = !keyed && !missing;
    return rules;
}

CellRules plainMark(Pattern& pattern, Random& random)
{
    CellRules rules;
    const bool backed = random.oneIn(2);
    pattern.parm(MARK_BACKED, backed);
    if (!backed)
        addSame(pattern, MARK_NUMBER4, random.below(CONT_MARK + 4)); // another one would be wiped
    rules.hide = rules.disable = backed;
    return rules;
}

CellRules plainScrollBar(Pattern& pattern, Random& random, int x, int y)
{
    CellRules rules;
    const bool vertical = random.oneIn(2);
    pattern.parm(SBAR_VERTICAL, vertical).parm(SBAR_WIDTH, random.below(3));
    if (vertical)
        pattern.parm4(PARM_X1, x, y, x + random.between(8, 10), y + AREA_HEIGHT);
    else
        pattern.parm4(PARM_X1, x, y, x + AREA_WIDTH, y + random.between(8, 16));

    const int total = random.between(0, 50);
    const int visible = random.between(0, 50);
    pattern.parm(SBAR_TOTAL, total).parm(SBAR_VISIBLE, visible);
    rules.hide = visible < total; // a bar that shows nothing does not paint over what its eraser painted
    rules.lowest = 0.0F;          // beyond its range the thumb lies outside the bar
    rules.highest = static_cast<float>(std::max(total - visible, 1));
    return rules;
}

} // namespace

void CellRules::restrict(const CellRules& other)
{
    hide = hide && other.hide;
    disable = disable && other.disable;
    value = value && other.value;
    text = text && other.text;
    lowest = std::max(lowest, other.lowest);
    highest = std::min(highest, other.highest);
}

bool CellRules::anyNumber() const
{
    return std::isinf(lowest) && std::isinf(highest);
}

std::string randomText(Random& random, int bytes)
{
    // Half and full width, half-width kana (two bytes), and bytes that are no character.
    static const std::string PIECES[] = {"A", "b", "7", " ", "-", "漢", "字", "日", "ｱ", "α", "\xA1", "\xFF"};
    std::string text;
    for (int i = random.between(0, bytes); i > 0; --i) {
        const std::string piece = random.pick(PIECES);
        if (static_cast<int>(text.size() + piece.size()) <= bytes)
            text += piece;
    }
    return text;
}

float randomNumber(Random& random, const CellRules& rules)
{
    if (rules.anyNumber() && random.oneIn(8))
        return random.pick({std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                            -std::numeric_limits<float>::infinity(), -0.0F, 1e-40F, 3e38F});
    const auto low = static_cast<int>(std::max(rules.lowest, -200.0F));
    const auto high = static_cast<int>(std::min(rules.highest, 200.0F));
    const auto number = static_cast<float>(random.between(low, high));
    // Halves now and then; towards zero, so that the range is kept.
    return random.oneIn(3) ? number - std::copysign(std::min(0.5F, std::fabs(number)), number) : number;
}

void addAnyItem(Pattern& pattern, int type, Random& random, int width, int height)
{
    const auto x = [&] { return random.between(-30, width + 30); };
    const auto y = [&] { return random.between(-30, height + 30); };
    const int x1 = x();
    const int y1 = y();
    pattern.item(type, x1, y1, random.oneIn(20) ? x1 : x(), random.oneIn(20) ? y1 : y());
    addParms(pattern, *FindItemClass(type), random);
}

void addAnyItems(Pattern& pattern, int count, Random& random, int width, int height)
{
    for (int i = 0; i < count; ++i) {
        addAnyItem(pattern, random.between(1, CONT_PTRN), random, width, height);
        pattern.parm(PARM_PASS, random.oneIn(9) ? random.between(-1, 3) : random.below(2));
        const int cell = random.between(0, RANDOM_CELLS + 1);
        if (cell > RANDOM_CELLS)
            pattern.code("unknown");
        else if (cell > 0)
            pattern.code(cell <= 20 ? "A" : "B", cell <= 20 ? cell - 1 : cell - 21);
    }
}

CellRules addPlainItem(Pattern& pattern, int type, Random& random, int x, int y)
{
    x += MARGIN;
    y += MARGIN;
    pattern.item(type, x + AREA_WIDTH, y, x + random.below(AREA_WIDTH / 2), y + AREA_HEIGHT);
    addParms(pattern, *FindItemClass(type), random);

    switch (type) {
    case PTRN_GBOX:
        for (const int width : {GBOX_TOP_WIDTH, GBOX_BOTTOM_WIDTH, GBOX_LEFT_WIDTH, GBOX_RIGHT_WIDTH})
            pattern.parm(width, random.below(6));
        return {};
    case PTRN_LINE:
        pattern.parm(LINE_WIDTH, random.between(1, 6));
        return {};
    case PTRN_RECT:
    case PTRN_CRCL:
        return plainShape(pattern, random);
    case PTRN_BARG:
        return plainBarGraph(pattern, random, x, y);
    case PTRN_BUTN:
        return plainButton(pattern, random, x, y);
    case PTRN_BMAP:
        return plainBitmap(pattern, random);
    case PTRN_MARK:
        return plainMark(pattern, random);
    case PTRN_SBAR:
        return plainScrollBar(pattern, random, x, y);
    default:
        break;
    }
    // Texts begin at the first corner.
    pattern.parm4(PARM_X1, x, y, x + AREA_WIDTH, y + AREA_HEIGHT);
    switch (type) {
    case PTRN_FCHR:
        return plainFixedText(pattern, random);
    case PTRN_CHAR:
        return plainVariableText(pattern, random);
    case PTRN_NUMR:
        return plainNumericField(pattern, random);
    case PTRN_RDIO:
    case PTRN_CHCK:
        return plainCheck(pattern, random);
    default:
        return {};
    }
}

void useRandomArtwork(Project& project, unsigned seed)
{
    usePalette();
    useFont(0, 16);
    useFont(1, 24);
    Random random(seed);
    for (MARKDATA& mark : MarkData)
        for (BYTE& bits : mark.mark)
            bits = static_cast<BYTE>(random.bits());
    MarkDataSet();
    MarkDataInit();
    std::filesystem::create_directories(project.folder() + "/Bitmap");
    project.write("Bitmap/two.ppm", "P6\n2 1\n255\n" + std::string("\x34\x78\x21\x11\x22\x33", 6));
    project.write("Bitmap/four.ppm",
                  "P6\n2 2\n255\n" + std::string("\x10\x20\x30\x40\x50\x60\x70\x80\x90\xA0\xB0\xC0", 12));
}

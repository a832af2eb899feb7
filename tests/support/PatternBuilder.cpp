#include "tests/support/PatternBuilder.h"

#include "pattern/ItemTable.h"

#include <stdexcept>
#include <utility>

using namespace tessary;

namespace
{

/// What the defaults of the schema would hide in a picture, or what is told apart better by another value.
struct Different {
    int type;
    int index;
    std::int32_t value;
};
constexpr Different DIFFERENT[] = {
    {PTRN_GBOX, GBOX_TOP_WIDTH, 2},   {PTRN_GBOX, GBOX_BOTTOM_WIDTH, 2}, {PTRN_GBOX, GBOX_LEFT_WIDTH, 2},
    {PTRN_GBOX, GBOX_RIGHT_WIDTH, 2}, {PTRN_BARG, BARG_FRAME_WIDTH, 0},  {PTRN_CHAR, FIELD_WIDTH, 5},
    {PTRN_NUMR, FIELD_WIDTH, 5},      {PTRN_RDIO, RDIO_VALUE, 1},        {PTRN_SBAR, SBAR_TROUGH_STEP, 5},
};

std::int32_t defaultOf(const tessary::ParmSchema& parm, int variant)
{
    switch (parm.kind) {
    case tessary::ParmKind::Color:
    case tessary::ParmKind::OptionalColor:
        return parm.index + variant;
    case tessary::ParmKind::Mark:
        return parm.written ? 0 : CONT_MARK + variant;
    default:
        return parm.initial;
    }
}

template <typename Array> std::string ints(const Array& values)
{
    std::string bytes;
    for (const std::int32_t value : values)
        bytes += int32(value);
    return bytes;
}

} // namespace

Pattern::Pattern(std::string name) : name_(std::move(name))
{
    for (const int color : {HEDR_TITLE_COLOR, HEDR_TITLE_BACK, HEDR_BODY_COLOR, HEDR_BAND_COLOR,
                            HEDR_FRAME_COLOR, HEDR_EDIT_COLOR, HEDR_EDIT_BACK})
        header(color, color);
    size(320, 240);
}

Pattern& Pattern::title(const std::string& everyLanguage)
{
    return title(everyLanguage, everyLanguage, everyLanguage);
}

Pattern& Pattern::title(const std::string& first, const std::string& second, const std::string& third)
{
    titles_ = {first, second, third};
    return *this;
}

Pattern& Pattern::size(int width, int height)
{
    return header(HEDR_WIDTH, width).header(HEDR_HEIGHT, height);
}

Pattern& Pattern::header(int index, std::int32_t value)
{
    parm1_.at(static_cast<std::size_t>(index)) = value;
    return *this;
}

Pattern& Pattern::header2(int index, std::int32_t value)
{
    parm2_.at(static_cast<std::size_t>(index)) = value;
    return *this;
}

Pattern& Pattern::logo(const std::string& name)
{
    logo_ = name;
    return *this;
}

Pattern& Pattern::bitmap(const std::string& name)
{
    bitmap_ = name;
    return *this;
}

Pattern& Pattern::item(int type, int x1, int y1, int x2, int y2)
{
    items_.emplace_back();
    last().type = type;
    if (const tessary::ItemClass* schema = tessary::FindItemClass(type))
        for (const tessary::ParmSchema& row : schema->parms)
            for (int variant = 0; variant < row.count; ++variant)
                parm(row.index + variant, defaultOf(row, variant));
    for (const Different& row : DIFFERENT)
        if (row.type == type)
            parm(row.index, row.value);
    return parm4(PARM_X1, x1, y1, x2, y2).parm(PARM_CLEAR, PARM_CLEAR);
}

Pattern& Pattern::item(int type, const RECT& corners)
{
    return item(type, corners.left, corners.top, corners.right, corners.bottom);
}

Pattern& Pattern::parm(int index, std::int32_t value)
{
    last().parm.at(static_cast<std::size_t>(index)) = value;
    return *this;
}

Pattern& Pattern::parm4(int first, std::int32_t c0, std::int32_t c1, std::int32_t c2, std::int32_t c3)
{
    return parm(first, c0).parm(first + 1, c1).parm(first + 2, c2).parm(first + 3, c3);
}

Pattern& Pattern::top(int pass)
{
    return parm(PARM_PASS, pass);
}

Pattern& Pattern::text(const std::string& everyLanguage)
{
    return text(everyLanguage, everyLanguage, everyLanguage);
}

Pattern& Pattern::text(const std::string& first, const std::string& second, const std::string& third)
{
    last().texts = {first, second, third};
    return *this;
}

Pattern& Pattern::code(const std::string& code, int offset)
{
    last().code = code;
    last().offset = offset;
    return *this;
}

Pattern& Pattern::action(int code, const std::string& name)
{
    last().action = code;
    last().name = name;
    return *this;
}

Pattern& Pattern::version(std::int32_t value)
{
    version_ = value;
    return *this;
}

Pattern& Pattern::reserved(std::int32_t value)
{
    reserved_ = value;
    return *this;
}

Pattern& Pattern::claimItems(std::int32_t count)
{
    count_ = count;
    return *this;
}

Pattern& Pattern::claimTextSize(std::int32_t size)
{
    textSize_ = size;
    return *this;
}

Pattern& Pattern::rawTexts(const std::string& block)
{
    texts_ = block;
    return *this;
}

std::string Pattern::bytes() const
{
    std::string records;
    std::string texts;
    for (const Item& item : items_) {
        records +=
            int32(item.type) + ints(item.parm) + int32(item.action) + int32(item.offset) + int32(reserved_);
        for (const std::string& text : {item.texts[0], item.texts[1], item.texts[2], item.name, item.code})
            texts += text + '\0';
    }
    texts = texts_.value_or(texts);

    std::string header = int32(version_) + ints(parm1_) + ints(parm2_);
    for (const std::string& title : titles_)
        header += field(title, 82);
    header += field(logo_, 22) + field(bitmap_, 22);
    header += int32(count_.value_or(static_cast<std::int32_t>(items_.size())));
    header += int32(textSize_.value_or(static_cast<std::int32_t>(texts.size()))) + int32(reserved_);
    return header + records + texts;
}

const Pattern& Pattern::save(Project& project) const
{
    project.write(name_ + ".ptn", bytes());
    return *this;
}

Pattern::Item& Pattern::last()
{
    if (items_.empty())
        throw std::logic_error("an item's property before the first item");
    return items_.back();
}

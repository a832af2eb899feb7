#include "base/EucText.h"
#include "config/Edition.h"
#include "pattern/ActionTable.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/RealParm.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/model/ItemFacts.h"

#include <algorithm>

namespace ptn
{

namespace
{

class Checker
{
  public:
    Checker(const Place& place, Subject label, const ProjectSource& project, Diagnostics& diagnostics)
        : place_(place), label_(std::move(label)), project_(project), diagnostics_(diagnostics)
    {
    }

    template <typename... Values> void say(fmt::format_string<Values...> text, Values&&... values)
    {
        diagnostics_.error(place_, label_ + ": ", text, std::forward<Values>(values)...);
    }

    void values(SchemaTable<ParmSchema> parms, const std::int32_t* values, bool onlyFatal = false,
                bool blinking = false)
    {
        for (const ParmSchema& parm : parms) {
            const bool used = parm.enable < 0 || values[parm.enable] != 0 || (parm.blinks && blinking);
            if ((onlyFatal && !parm.fatal) || !used || parm.index == PARM_PASS || parm.written ||
                (parm.since && !has(*parm.since)))
                continue;
            if (parm.kind == ParmKind::Real || parm.kind == ParmKind::Message) {
                entryValue(parm, values[parm.index]);
                continue;
            }
            for (int i = parm.index; i < parm.index + parm.count; ++i) {
                if (parm.accepts(values[i]))
                    continue;
                say("'{}' is {}, outside {} to {}{}. Correct it.", parm.name, values[i], parm.minimum,
                    parm.maximum, parm.fatal ? ", which ends the panel when it is drawn" : "");
                break;
            }
        }
    }

    void font(int number)
    {
        if (number < 0 || number >= CONT_FONT)
            return;
        const std::array<std::string, 3>& names = project_.resources.fontNames(number);
        for (std::size_t language = 0; language < names.size(); ++language)
            if (names.at(language).empty() && shown(language))
                say("its font, number {}, has no name in language {}, so no text is drawn. Name it in "
                    "'fonts'.",
                    number, language);
    }

    void text(const std::string& text, std::size_t limit, const char* what)
    {
        if (text.empty()) // as most are, and converting takes time
            return;
        if (text.size() > limit)
            say("{} has {} bytes; the panel keeps {}. Shorten it.", what, text.size(), limit);
        Diagnostics found;
        if (!ToEuc(EucToUtf8(text), text.size(), "", {}, found) || Utf8ToEuc(EucToUtf8(text)) != text)
            say("{} has bytes that are no EUC-JP. Write it anew.", what);
        else
            drawable(text, what);
    }

    void bitmap(const std::string& name, const char* what)
    {
        if (!name.empty() && !project_.bitmaps.count(name))
            say("{} '{}' is not among the bitmaps, so nothing is drawn. Put the file there or correct the "
                "name.",
                what, EucToUtf8(name));
    }

    void cell(const PatternItem& item)
    {
        if (item.code.empty())
            return;
        const CodeTable::Row* row = project_.codes.row(item.code);
        if (!row)
            say("no code '{}', so it is bound to nothing. Add it to 'codes' or use another.",
                EucToUtf8(item.code));
        else if (item.record.ID_No < 0 || item.record.ID_No >= row->count)
            say("code '{}' has {} cells, so there is no {}{}. Correct the offset or extend the code.",
                row->name, row->count, item.record.ID_No < 0 ? "" : "+", item.record.ID_No);
    }

    // Whether the project is of an edition that has a correction.
    bool has(Correction row) const { return Has(row, project_.profile.edition()); }

  private:
    // What numbers an operator may enter, and what is said about others.
    void entryValue(const ParmSchema& parm, int value)
    {
        if (parm.kind == ParmKind::Message && value != 0 && project_.messages.names().nameOf(value).empty())
            say("'{}' is {}, which is not among the messages, so nothing is said. Correct it, or add it to "
                "'messages'.",
                parm.name, value);
        if (parm.kind == ParmKind::Real && !parm.accepts(value))
            say("'{}' is {}. Write a number{}.", parm.name, RealParm(value),
                parm.minimum < 0 ? "" : " above 0, or remove it");
    }

    // Whether the program can be set to a language: it is, or some font has a name in it.
    bool shown(std::size_t language) const
    {
        const std::string set = project_.profile.value("FONT", "LANGUAGE");
        bool any = set == std::to_string(language);
        for (int font = 0; font < CONT_FONT; ++font)
            any = any || !project_.resources.fontNames(font).at(language).empty();
        return any;
    }

    // Characters of three bytes are in no font of a panel, which shows two others in their place.
    void drawable(const std::string& text, const char* what)
    {
        if (const auto character = NotInFonts(text))
            say("{} has '{}', which the fonts of a panel lack. {}", what, *character, Remedy({*character}));
    }

    Place place_;
    Subject label_;
    const ProjectSource& project_;
    Diagnostics& diagnostics_;
};

// Whether the item blinks, or a cell may make it blink.
bool MayBlink(const PatternItem& item, const ItemClass& schema)
{
    return schema.blink && (!item.code.empty() || item.record.Parm[schema.blinkParm] != 0);
}

void CheckRoom(const ItemFacts& facts, Checker& checker)
{
    if (!facts.fits())
        checker.say("is too small for its frame and needle, which ends the panel when it is drawn. Make it "
                    "larger.");
}

void CheckEntryRange(const ItemFacts& facts, Checker& checker)
{
    const std::optional<NumberField> field = facts.number();
    if (field && field->minimum > field->maximum && checker.has(Correction::LimitsBind))
        checker.say("'minimum' is {} and 'maximum' {}, so every entry is refused. Write both, the lower one "
                    "as 'minimum'.",
                    field->minimum, field->maximum);
}

bool IsMessage(int action)
{
    return action >= ACTION_MESSAGE_SELF && action <= ACTION_MESSAGE_PARENT;
}

void CheckAction(const PatternItem& item, Checker& checker)
{
    const ActionSchema* action = FindAction(item.record.ID_Type);
    if (!item.name.empty() && !(action && action->opens))
        checker.say("names the screen '{}', but its action opens none. Write an action such as "
                    "open-application, or remove 'pattern'.",
                    EucToUtf8(item.name));
    if (!action)
        checker.say("action {} does nothing. Use one from 0 to 16.", item.record.ID_Type);
    else if (IsMessage(item.record.ID_Type) && item.code.empty())
        checker.say(
            "sends the number of no cell, by which the program could tell what was pressed. Name one with "
            "'data'.");
}

template <std::size_t N> std::string FieldOf(const char (&field)[N])
{
    return std::string(field, BoundedLength(field, N));
}

} // namespace

void CheckDrawable(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics)
{
    Checker window(pattern.place, "the window", project, diagnostics);
    window.values(HeaderParms(), pattern.header.Parm1, true);
    for (std::size_t i = 0; i < pattern.items.size(); ++i) {
        const PatternItem& item = pattern.items[i];
        Checker checker(item.place, ItemName(item, i), project, diagnostics);
        const ItemClass* schema = FindItemClass(item.record.Type);
        if (!schema)
            continue;
        checker.values(schema->parms, item.record.Parm, true, MayBlink(item, *schema));
        checker.values(CommonParms(), item.record.Parm, true);
        CheckRoom(ItemFacts(item, project.resources), checker);
    }
}

void CheckItems(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics)
{
    Checker window(pattern.place, "the window", project, diagnostics);
    const HEDRFILE& header = pattern.header;
    window.values(HeaderParms(), header.Parm1);
    if (header.Parm1[HEDR_TITLE_HEIGHT]) {
        window.font(header.Parm1[HEDR_TITLE_FONT]);
        if (header.Parm1[HEDR_CLOCK])
            window.font(header.Parm1[HEDR_CLOCK_FONT]);
    }
    window.text(FieldOf(header.PtrnName1), SIZE_PTRNNAME, "its title");
    window.text(FieldOf(header.PtrnName2), SIZE_PTRNNAME, "its title");
    window.text(FieldOf(header.PtrnName3), SIZE_PTRNNAME, "its title");
    if (header.Parm1[HEDR_LOGO])
        window.bitmap(FieldOf(header.LogoName), "its logo");
    window.bitmap(FieldOf(header.BmapName), "its background");

    for (std::size_t i = 0; i < pattern.items.size(); ++i) {
        const PatternItem& item = pattern.items[i];
        Checker checker(item.place, ItemName(item, i), project, diagnostics);
        const ItemClass* schema = FindItemClass(item.record.Type);
        if (!schema) {
            checker.say("no such type, so nothing is drawn. Use a type from 1 to {}.", CONT_PTRN);
            continue;
        }
        checker.values(schema->parms, item.record.Parm, false, MayBlink(item, *schema));
        checker.values(CommonParms(), item.record.Parm);
        const int pass = item.record.Parm[PARM_PASS];
        if (pass != 0 && pass != 1)
            checker.say("'pass' is {}, in which nothing is ever drawn. Write 'back' or 'front'.", pass);
        for (const std::string& text : item.texts)
            checker.text(text, SIZE_PTRNTEXT, "its text");
        checker.text(item.name, SIZE_ID_NAME, "the name of its pattern");
        checker.text(item.code, SIZE_ID_CODE, "its code");
        checker.cell(item);
        if (schema->text == ItemText::BitmapName)
            for (const std::string& text : item.texts)
                checker.bitmap(text, "its bitmap");
        const ItemFacts facts(item, project.resources);
        if (facts.font() >= 0)
            checker.font(facts.font());
        CheckAction(item, checker);
        CheckRoom(facts, checker);
        CheckEntryRange(facts, checker);
        facts.check([&checker](const std::string& what) { checker.say("{}", what); });
    }
}

} // namespace ptn

#include "tools/ptn/source/ItemSource.h"

#include "pattern/ActionTable.h"
#include "pattern/ItemParm.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/source/Exact.h"
#include "tools/ptn/source/Placement.h"

#include <algorithm>
#include <set>

namespace ptn
{

namespace
{

const std::vector<std::string> ITEM_KEYS = {"type",   "style",   "rect", "at",   "size",   "text",
                                            "action", "pattern", "data", "parm", "repeat", "exact"};

/// What others call the place; the first four are in the schema.
const std::set<std::string> PLACE_WORDS = {"x1", "y1", "x2", "y2", "x", "y", "from", "to", "pos", "position"};

/// A type that only its number names has no attributes but the common ones.
const ItemClass UNKNOWN_TYPE = [] {
    ItemClass type;
    type.name = "item of an unknown type";
    return type;
}();

class ItemReader
{
  public:
    ItemReader(const ItemContext& context, int type, const ItemClass& schema, Subject label,
               const Source& source)
        : project_(context.project), styles_(context.styles), diagnostics_(context.diagnostics),
          schema_(schema), label_(std::move(label)),
          attributes_({schema.parms, CommonParms()}, item_.record.Parm, project_.vocabulary(), diagnostics_)
    {
        item_.record.Type = type;
        item_.place = source.place();
    }

    std::optional<PatternItem> read(const std::vector<Entry>& entries);

  private:
    Subject what(const char* key) const { return label_ + ": " + Quoted(key); }
    void applyStyle(const std::string& name, bool named, const Place& place);
    void applyStyles(const std::vector<Entry>& entries);
    void applyOwn(const std::vector<Entry>& entries);
    void readKey(const Entry& entry);
    void readTexts(const Source& source, const Place& place);
    void readAction(const Source& source);
    bool checkAction() const;
    void checkPlace(const std::vector<Entry>& entries);

    const ProjectSource& project_;
    const Styles& styles_;
    Diagnostics& diagnostics_;
    const ItemClass& schema_;
    Subject label_;
    PatternItem item_;
    Attributes attributes_;
    Placement placement_;
    bool acts_ = false; ///< an action was given
};

void ItemReader::applyStyle(const std::string& name, bool named, const Place& place)
{
    for (const Styles* styles : {&project_.styles, &styles_}) {
        const Layer* style = styles->find(name);
        if (!style)
            continue;
        for (const Entry& entry : style->entries) {
            if (entry.name == "size")
                placement_.read(entry, style->label, diagnostics_);
            else if (entry.name == "action")
                readAction(entry.value);
            else if (named && !attributes_.find(entry.name))
                diagnostics_.error(place, label_,
                                   ": {} sets '{}', which a {} does not have. Use another style.",
                                   style->label.text(), entry.name, schema_.name);
        }
        attributes_.apply(*style);
    }
}

void ItemReader::applyStyles(const std::vector<Entry>& entries)
{
    applyStyle("item", false, item_.place);
    applyStyle(schema_.name, false, item_.place);
    for (const Entry& entry : entries) {
        if (entry.name != "style")
            continue;
        std::vector<Source> names = entry.value.members();
        if (!entry.value.isList())
            names = {entry.value};
        for (const Source& name : names) {
            if (project_.styles.find(name.text()) || styles_.find(name.text())) {
                applyStyle(name.text(), true, entry.place);
                continue;
            }
            std::vector<std::string> known = project_.styles.names();
            for (const std::string& own : styles_.names())
                known.push_back(own);
            diagnostics_.error(entry.place, label_, ": no style '{}'.{} Add it to 'styles' or use another.",
                               name.text(), Suggestion(name.text(), known));
        }
    }
}

void ItemReader::applyOwn(const std::vector<Entry>& entries)
{
    Layer own{label_, {}};
    for (const Entry& entry : entries) {
        if (PLACE_WORDS.count(entry.name)) {
            diagnostics_.error(entry.place, label_,
                               ": write its place as rect: [x1, y1, x2, y2] or at: [x, y], not as '{}'.",
                               entry.name);
        } else if (std::find(ITEM_KEYS.begin(), ITEM_KEYS.end(), entry.name) != ITEM_KEYS.end()) {
            readKey(entry);
        } else if (attributes_.find(entry.name)) {
            own.entries.push_back(entry);
        } else {
            std::vector<std::string> names = ITEM_KEYS;
            for (const std::string& name : attributes_.names())
                if (!PLACE_WORDS.count(name))
                    names.push_back(name);
            const bool cell = entry.name == "code" || entry.name == "cell";
            diagnostics_.error(entry.place, label_, ": unknown attribute '{}'.{} Correct or remove it.",
                               entry.name, Suggestion(cell ? "data" : entry.name, names));
        }
    }
    attributes_.apply(own);
    // Last, because nothing else can say what these mean.
    for (const Entry& entry : entries)
        if (entry.name == "parm")
            ReadParm(entry.value, label_, item_.record.Parm, diagnostics_);
}

void ItemReader::readKey(const Entry& entry)
{
    if (entry.name == "text") {
        readTexts(entry.value, entry.place);
    } else if (entry.name == "action") {
        readAction(entry.value);
    } else if (entry.name == "pattern") {
        const auto name = Text(entry.value, what("pattern"), diagnostics_);
        const auto euc =
            name ? ToEuc(*name, SIZE_ID_NAME, what("pattern"), entry.place, diagnostics_) : std::nullopt;
        item_.name = euc.value_or("");
    } else if (entry.name == "data") {
        if (const auto cell = project_.codes.find(entry.value, what("data"), diagnostics_)) {
            item_.code = cell->code;
            item_.record.ID_No = cell->offset;
        }
    } else if (entry.name == "rect" || entry.name == "at" || entry.name == "size") {
        placement_.read(entry, label_, diagnostics_);
    }
}

void ItemReader::readTexts(const Source& source, const Place& place)
{
    if (schema_.text == ItemText::None) {
        diagnostics_.error(place, label_, ": a {} has no text of its own. Remove 'text'.", schema_.name);
        return;
    }
    const auto texts = Texts(source, what("text"), diagnostics_);
    for (std::size_t language = 0; texts && language < item_.texts.size(); ++language) {
        const auto euc = ToEuc((*texts)[language], SIZE_PTRNTEXT, what("text"), place, diagnostics_);
        item_.texts.at(language) = euc.value_or("");
        if (schema_.text == ItemText::BitmapName && euc && !euc->empty() && !project_.bitmaps.count(*euc))
            diagnostics_.error(place, label_,
                               ": no file '{}' in 'bitmaps'. Put it there or correct the name.",
                               (*texts)[language]);
    }
}

void ItemReader::readAction(const Source& source)
{
    acts_ = true;
    const std::string name = source.text();
    const std::optional<int> code = ParseInteger(name);
    if (const ActionSchema* action = FindAction(name.c_str()); action && source.isText()) {
        item_.record.ID_Type = action->code;
    } else if (code) {
        item_.record.ID_Type = *code;
    } else {
        std::vector<std::string> names;
        for (const ActionSchema& known : Actions())
            names.push_back(known.name);
        diagnostics_.error(source.place(), label_,
                           ": no action '{}'.{} Write an action such as close, message or open-application.",
                           name, Suggestion(name, names));
    }
}

bool ItemReader::checkAction() const
{
    const ActionSchema* action = FindAction(item_.record.ID_Type);
    if (!action || !action->opens || !item_.name.empty())
        return true;
    diagnostics_.error(item_.place, label_, ": the action '{}' opens a pattern. Name it with 'pattern'.",
                       action->name);
    return false;
}

// What an item itself says of its place; a style's size is there to be replaced.
void ItemReader::checkPlace(const std::vector<Entry>& entries)
{
    const bool rect =
        std::any_of(entries.begin(), entries.end(), [](const Entry& entry) { return entry.name == "rect"; });
    for (const Entry& entry : entries) {
        if (rect && (entry.name == "at" || entry.name == "size"))
            diagnostics_.error(entry.place, label_,
                               ": has both 'rect' and '{}', which say the same. Remove one of them.",
                               entry.name);
        else if (entry.name == "size" && schema_.drawnSize)
            diagnostics_.doubt(entry.place, label_ + ": 'size' changes nothing, since a " + schema_.name +
                                                " is as large as what it shows. Remove it, or write another "
                                                "font or 'width'.");
    }
}

std::optional<PatternItem> ItemReader::read(const std::vector<Entry>& entries)
{
    applyStyles(entries);
    applyOwn(entries);
    checkPlace(entries);
    if (schema_.onlyActs && !acts_)
        diagnostics_.doubt(item_.place, label_ +
                                            ": does nothing when it is pressed. Write an 'action' such as "
                                            "close, message or open-application, or none if that is meant.");
    const auto exact = std::find_if(entries.begin(), entries.end(),
                                    [](const Entry& entry) { return entry.name == "exact"; });
    const bool placed = exact != entries.end() && HasExactRect(exact->value)
                            ? true
                            : placement_.finish(item_, schema_, project_.resources, label_, diagnostics_);
    if (!checkAction() || !placed)
        return std::nullopt;
    if (exact != entries.end())
        ReadExactItem(exact->value, label_, item_, diagnostics_);
    return item_;
}

} // namespace

std::vector<Entry> SpelledOut(const std::vector<Entry>& entries, const Subject& label,
                              Diagnostics& diagnostics)
{
    if (entries.size() != 1 || !entries[0].value.isMap() || !FindItemClass(entries[0].name.c_str()))
        return entries;
    std::vector<Entry> own = Entries(entries[0].value, label, diagnostics);
    own.insert(own.begin(), {"type", entries[0].place, Source(nullptr, YAML::Node(entries[0].name))});
    return own;
}

std::optional<PatternItem> ReadItem(const Source& source, const std::vector<Entry>& entries, Subject& label,
                                    const ItemContext& context)
{
    const auto type =
        std::find_if(entries.begin(), entries.end(), [](const Entry& entry) { return entry.name == "type"; });
    std::vector<std::string> names;
    std::string list;
    for (const ItemClass& schema : ItemClasses()) {
        names.push_back(schema.name);
        list += (list.empty() ? "" : ", ") + names.back();
    }
    if (type == entries.end()) {
        if (source.isMap())
            context.diagnostics.error(source.place(), label, " has no 'type'. Write one of: {}.", list);
        return std::nullopt;
    }
    const std::string name = type->value.text();
    const std::optional<int> number = ParseInteger(name);
    const ItemClass* schema = number ? FindItemClass(*number) : FindItemClass(name.c_str());
    if (!schema && number)
        schema = &UNKNOWN_TYPE;
    if (!schema) {
        context.diagnostics.error(type->place, label, ": no type '{}'.{} Write one of: {}.", name,
                                  Suggestion(name, names), list);
        return std::nullopt;
    }
    label += " (" + std::string(schema->name) + ")";
    return ItemReader(context, number ? *number : schema->type, *schema, label, source).read(entries);
}

} // namespace ptn

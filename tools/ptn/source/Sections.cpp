#include "tools/ptn/source/Sections.h"

#include "base/Constants.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/yaml/YamlText.h"

namespace ptn
{

namespace
{

using Bytes = std::optional<std::string>;
using P = ProjectSource;

class ProgramSection : public Section
{
  public:
    ProgramSection() : Section("program", nullptr, ProjectFile::None) {}
    void read(P& to, const SectionSource& from) const override
    {
        const auto name = Text(from.value(), "'program'", from.diagnostics);
        if (name && ToEucFileName(*name, SIZE_PTRNNAME, "program", from.entry.place, from.diagnostics))
            to.program = *name;
    }
    void emit(const P& of, FileMap& sources) const override
    {
        sources["project.yaml"] += "program: " + YamlScalar(of.program) + "\n\n";
    }
};

// A key of the profile with a name of its own, since it decides what the screens do.
class LineSection : public Section
{
  public:
    explicit LineSection(const char* name) : Section(name, nullptr, ProjectFile::None) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.profile.readLine(name(), from.value(), from.diagnostics);
    }
    void emit(const P& of, FileMap& sources) const override
    {
        sources["project.yaml"] += of.profile.lineYaml(name());
    }
};

class EditionSection : public LineSection
{
  public:
    EditionSection() : LineSection("edition") {}
};

class ScaleSection : public LineSection
{
  public:
    ScaleSection() : LineSection("scale") {}
};

class CodeSection : public Section
{
  public:
    CodeSection() : Section("codes", "PtrnCode", ProjectFile::Made) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.codes.read(from.value(), from.diagnostics);
    }
    Bytes bytes(const P& of) const override { return of.codes.bytes(); }
    void load(P& to, const SectionFile& from) const override
    {
        to.codes.load(from.text(), from.place, from.diagnostics);
    }
    void emit(const P& of, FileMap& sources) const override { sources["codes.yaml"] += of.codes.yaml(); }
};

class ColorSection : public Section
{
  public:
    ColorSection() : Section("colors", "PtrnColr", ProjectFile::Made) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.resources.readColors(from.value(), from.diagnostics);
    }
    Bytes bytes(const P& of) const override { return of.resources.colorBytes(); }
    void load(P& to, const SectionFile& from) const override
    {
        to.resources.loadColors(from.text(), from.used.colors);
    }
    void emit(const P& of, FileMap& sources) const override
    {
        sources["colors.yaml"] += of.resources.colorsYaml();
    }
};

// The profile holds the fonts.
class FontSection : public Section
{
  public:
    FontSection() : Section("fonts", nullptr, ProjectFile::None) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.resources.readFonts(from.value(), from.diagnostics);
    }
    void emit(const P& of, FileMap& sources) const override
    {
        sources["project.yaml"] += of.resources.fontsYaml() + "\n";
    }
};

class MarkSection : public Section
{
  public:
    MarkSection() : Section("marks", "PtrnMark", ProjectFile::Made) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.resources.readMarks(from.value(), from.folder, from.diagnostics);
    }
    Bytes bytes(const P& of) const override { return of.resources.markBytes(); }
    void load(P& to, const SectionFile& from) const override
    {
        to.resources.loadMarks(from.text(), from.used.marks);
    }
    void emit(const P& of, FileMap& sources) const override
    {
        sources["marks.yaml"] += of.resources.marksYaml();
    }
};

class StyleSection : public Section
{
  public:
    StyleSection() : Section("styles", nullptr, ProjectFile::None) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.styles.read(from.value(), from.diagnostics);
    }
};

class GroupSection : public Section
{
  public:
    GroupSection() : Section("groups", nullptr, ProjectFile::None) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.groups.read(from.value(), nullptr, from.diagnostics);
    }
};

// The profile lies beside the project directory, and the build knows where.
class ProfileSection : public Section
{
  public:
    ProfileSection() : Section("profile", nullptr, ProjectFile::None) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.profile.read(from.value(), from.diagnostics);
    }
    void emit(const P& of, FileMap& sources) const override { sources["project.yaml"] += of.profile.yaml(); }
};

class MessageSection : public Section
{
  public:
    MessageSection() : Section("messages", "MesgData.prf", ProjectFile::Made) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.messages.read(from.value(), to.codes, from.diagnostics);
    }
    Bytes bytes(const P& of) const override { return of.messages.empty() ? Bytes() : of.messages.bytes(); }
    void load(P& to, const SectionFile& from) const override { to.messages.load(from.text(), from.place); }
    void emit(const P& of, FileMap& sources) const override { sources["tables.yaml"] += of.messages.yaml(); }
};

class LimitSection : public Section
{
  public:
    LimitSection() : Section("limits", "LimtData.prf", ProjectFile::Made) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.limits.read(from.value(), to.codes, to.messages, FormOf(to), from.diagnostics);
    }
    Bytes bytes(const P& of) const override
    {
        return of.limits.empty() ? Bytes() : of.limits.bytes(FormOf(of));
    }
    void load(P& to, const SectionFile& from) const override
    {
        to.limits.load(from.text(), FormOf(to), from.place);
    }
    void emit(const P& of, FileMap& sources) const override
    {
        sources["tables.yaml"] += of.limits.yaml(of.messages);
    }

  private:
    static LimitForm FormOf(const P& project) { return LimitFormOf(project.profile.edition()); }
};

class FlagSection : public Section
{
  public:
    FlagSection() : Section("flags", "PtrnFlag", ProjectFile::Seed) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.flags.read(from.value(), to.codes, from.diagnostics);
    }
    Bytes bytes(const P& of) const override { return of.flags.given() ? of.flags.bytes(of.codes) : Bytes(); }
    void load(P& to, const SectionFile& from) const override { to.flags.load(from.text()); }
    void emit(const P& of, FileMap& sources) const override
    {
        sources["tables.yaml"] += of.flags.yaml(of.codes);
    }
};

class LinkSection : public Section
{
  public:
    LinkSection() : Section("links", "PtrnLink", ProjectFile::Made) {}
    void read(P& to, const SectionSource& from) const override
    {
        to.links.read(from.value(), to.codes, from.folder, from.diagnostics);
    }
    Bytes bytes(const P& of) const override { return of.links.empty() ? Bytes() : of.links.bytes(); }
    void load(P& to, const SectionFile& from) const override
    {
        to.links.load(from.text(), from.place, from.diagnostics);
    }
    bool same(const std::string& one, const std::string& other) const override
    {
        return LinkTable::same(one, other);
    }
    void emit(const P& of, FileMap& sources) const override { sources["links.yaml"] += of.links.yaml(); }
};

class RegistrySection : public Section
{
  public:
    RegistrySection() : Section("registry", nullptr, ProjectFile::None) {}
    void read(P& to, const SectionSource& from) const override
    {
        if (const auto path = Text(from.value(), "'registry'", from.diagnostics))
            to.registry = QuotedTexts(from.folder / *path, from.entry.place, from.diagnostics);
    }
};

/// The row of a section that an application holds.
class ApplicationSection : public Section
{
  public:
    using Make = std::unique_ptr<OwnSection> (*)();
    ApplicationSection(const char* name, const char* file, ProjectFile kind, Make make)
        : Section(name, file, kind), make_(make)
    {
    }
    void read(P& to, const SectionSource& from) const override
    {
        held(to).read(from.value(), from.folder, from.diagnostics);
    }
    Bytes bytes(const P& of) const override
    {
        const auto found = of.own.find(name());
        return found == of.own.end() ? Bytes() : found->second->bytes();
    }
    void load(P& to, const SectionFile& from) const override
    {
        if (from.bytes)
            held(to).load(*from.bytes, from.place, from.diagnostics);
    }
    void emit(const P& of, FileMap& sources) const override
    {
        if (const auto found = of.own.find(name()); found != of.own.end())
            found->second->emit(sources);
    }

  private:
    OwnSection& held(P& project) const
    {
        std::unique_ptr<OwnSection>& section = project.own[name()];
        if (!section)
            section = make_();
        return *section;
    }

    Make make_;
};

using Rows = std::vector<std::unique_ptr<Section>>;

template <class... Row> Rows RowsOf()
{
    Rows rows;
    (rows.push_back(std::make_unique<Row>()), ...);
    return rows;
}

// Made when it is needed first, which may be a registration before main.
Rows& Table()
{
    static Rows rows = RowsOf<ProgramSection, EditionSection, ScaleSection, CodeSection, ColorSection,
                              FontSection, MarkSection, StyleSection, GroupSection, ProfileSection,
                              MessageSection, LimitSection, FlagSection, LinkSection, RegistrySection>();
    return rows;
}

} // namespace

const Rows& Sections()
{
    return Table();
}

void AddSection(const char* name, const char* file, ProjectFile kind, ApplicationSection::Make make)
{
    // The registry, which holds nothing of the project, stays the last one.
    Table().insert(std::prev(Table().end()), std::make_unique<ApplicationSection>(name, file, kind, make));
}

} // namespace ptn

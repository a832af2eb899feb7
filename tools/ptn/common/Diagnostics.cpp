#include "tools/ptn/common/Diagnostics.h"

#include <ostream>

namespace ptn
{

Subject Subject::oneOf(const std::string& which)
{
    Subject subject(which);
    subject.which_ = which.size();
    return subject;
}

Subject& Subject::operator+=(const std::string& more)
{
    text_ += more;
    return *this;
}

void Diagnostics::add(const Diagnostic& one)
{
    // Without a line, it is only the one of several alike that tells where the mistake is.
    const std::string text = one.place.line > 0 ? one.message.kind() : one.message.text();
    if (!known_.emplace(one.place.file, one.place.line, one.severity, text).second)
        return;
    found_.push_back(one);
    errors_ += one.severity == Severity::Error;
}

void Diagnostics::add(const Diagnostics& others)
{
    for (Diagnostic one : others.found_) {
        if (one.severity == Severity::Error)
            one.severity = Severity::Finding;
        add(one);
    }
}

void Diagnostics::print(std::ostream& out) const
{
    for (const Diagnostic& one : found_) {
        out << one.place.file;
        if (one.place.line > 0)
            out << ":" << one.place.line;
        if (!one.place.file.empty())
            out << ": ";
        out << (one.severity == Severity::Warning ? "warning: " : "") << one.message.text();
        if (!one.place.use.empty())
            out << " Used in " << one.place.use << ".";
        out << '\n';
    }
}

} // namespace ptn

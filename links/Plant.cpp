// What programs call: all connections of a project.
#include "config/FileCntl.h"
#include "config/Settings.h"
#include "links/Link.h"
#include "links/MakeLink.h"
#include "links/ModelFile.h"
#include "log/Category.h"
#include "log/LogText.h"
#include "tessary_plant.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>

namespace tessary
{

namespace
{

using Clock = std::chrono::steady_clock;

/// For all connections together; the rest of the second is the program's.
constexpr std::chrono::milliseconds LONGEST_END(800);

struct Plant {
    Looks looks;
    std::vector<std::unique_ptr<Link>> links;
};
std::unique_ptr<Plant> plant;

constexpr int BYTES_MAX = 32 << 20;

/// The bytes of a file; none, with the reason in the log, when it can not be read.
bool ReadFile(const std::string& file, std::string& bytes)
{
    const int size = FileSize(file.c_str(), "");
    if (size < 0 || size > BYTES_MAX) {
        LogText(CATEGORY_LINKS, __FILE__, __LINE__, "%s: can not be read", file.c_str());
        return false;
    }
    bytes.resize(static_cast<std::size_t>(size));
    return size == 0 || FileRead(file.c_str(), "", bytes.data(), size, 0, nullptr, 0) == 1;
}

/// "@DIR@" is the folder above that of the links, where the profile lies.
void FillInFolder(LinkConnection& connection, const std::string& folder)
{
    const std::string mark = "@DIR@";
    std::string* const paths[] = {&connection.address, &connection.passwordFile, &connection.caFile,
                                  &connection.certFile, &connection.keyFile};
    for (std::string* path : paths)
        if (path->compare(0, mark.size(), mark) == 0)
            path->replace(0, mark.size(), folder);
}

} // namespace

int LinksInit(const char* file)
{
    LinksExit();
    const std::string name = file ? file : std::string(ProjPath) + "/PtrnLink";
    if (!FileExist(name.c_str(), ""))
        return 1;
    std::string bytes;
    if (!ReadFile(name, bytes))
        return 0;
    LinkModel model;
    std::string error;
    if (!ReadLinks(bytes, model, error)) {
        LogText(CATEGORY_LINKS, __FILE__, __LINE__, "%s: %s", name.c_str(), error.c_str());
        return 0;
    }
    std::error_code unknown;
    const std::filesystem::path whole = std::filesystem::absolute(name, unknown);
    const std::string folder = whole.parent_path().parent_path().string();
    plant = std::make_unique<Plant>();
    for (LinkConnection& connection : model) {
        FillInFolder(connection, folder);
        plant->links.push_back(MakeLink(connection, plant->looks, 2 * plant->links.size()));
    }
    return 1;
}

void LinksTimr()
{
    if (!plant)
        return;
    const double now = std::chrono::duration<double>(Clock::now().time_since_epoch()).count();
    for (const auto& link : plant->links)
        link->tick(now);
}

void LinksExit()
{
    if (!plant)
        return;
    const Clock::time_point deadline = Clock::now() + LONGEST_END;
    for (const auto& link : plant->links)
        link->stop();
    for (const auto& link : plant->links)
        link->end(deadline);
    plant->looks.regainAll();
    plant.reset();
}

std::vector<LinkStatus> LinksStatus()
{
    std::vector<LinkStatus> all;
    if (plant)
        for (const auto& link : plant->links)
            all.push_back(link->status());
    return all;
}

} // namespace tessary

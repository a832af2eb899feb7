// Runs a target without libFuzzer: its corpus, then changes of it, the same at every run.
//
//   fuzz_replay TARGET CORPUS [COUNT]    the files of a folder, and COUNT changed ones
//   fuzz_replay TARGET FILE              one input, such as one that was found to be fatal
//
// When the process is ended by an input, that is left in the working directory as TARGET.input.
#include "fuzz/Target.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <vector>

namespace fs = std::filesystem;

namespace
{

constexpr unsigned SEED = 20261122;
constexpr std::size_t LONGEST = std::size_t{64} * 1024;

std::string Read(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Inputs that are made of those of a corpus.
class Changes
{
  public:
    explicit Changes(const std::vector<std::string>& corpus) : corpus_(corpus) {}

    std::string next()
    {
        std::string bytes = any();
        for (std::size_t i = 1 + below(6); i > 0; --i)
            change(bytes);
        bytes.resize(std::min(bytes.size(), LONGEST));
        return bytes;
    }

  private:
    std::size_t below(std::size_t end) { return random_() % std::max<std::size_t>(end, 1); }
    const std::string& any() { return corpus_[below(corpus_.size())]; }

    void change(std::string& bytes)
    {
        static const std::string NUMBERS[] = {std::string(4, '\0'), "\xFF\xFF\xFF\xFF",
                                              "\xFF\xFF\xFF\x7F",   std::string("\0\0\0\x80", 4),
                                              "99999999999",        "-1"};
        const std::size_t at = below(bytes.size());
        const std::string& other = any();
        switch (below(7)) {
        case 0:
            if (!bytes.empty())
                bytes[at] = static_cast<char>(random_());
            break;
        case 1:
            if (!bytes.empty())
                bytes[at] = static_cast<char>(bytes[at] ^ 1 << below(8));
            break;
        case 2: {
            const std::string& number = NUMBERS[below(std::size(NUMBERS))];
            bytes.replace(at, below(2) ? number.size() : 0, number);
            break;
        }
        case 3:
            bytes.erase(at, 1 + below(below(2) ? 8 : bytes.size()));
            break;
        case 4:
            bytes.insert(at, other.substr(below(other.size()), below(64)));
            break;
        case 5:
            bytes.insert(at, bytes.substr(below(bytes.size()), below(200)));
            break;
        default:
            bytes.insert(at, std::string(below(below(8) ? 16 : 3000), static_cast<char>(random_())));
        }
    }

    const std::vector<std::string>& corpus_;
    std::mt19937 random_{SEED};
};

/// The input that is being run, kept until it has been.
class Witness
{
  public:
    explicit Witness(const std::string& target) : path_(fs::absolute(target + ".input")) {}
    ~Witness() { fs::remove(path_); }
    Witness(const Witness&) = delete;
    Witness& operator=(const Witness&) = delete;

    void see(const std::string& bytes) const
    {
        std::ofstream(path_, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

  private:
    fs::path path_;
};

std::vector<std::string> ReadCorpus(const fs::path& place)
{
    std::vector<fs::path> paths = {place};
    if (fs::is_directory(place))
        paths.assign(fs::directory_iterator(place), {});
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> corpus;
    for (const fs::path& path : paths)
        if (fs::is_regular_file(path))
            corpus.push_back(Read(path));
    return corpus;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "Usage: fuzz_replay TARGET CORPUS|FILE [COUNT]\n");
        return 2;
    }
    const fuzz::Target* target = fuzz::Target::find(argv[1]);
    const std::vector<std::string> corpus = ReadCorpus(argv[2]);
    if (!target || corpus.empty()) {
        std::fprintf(stderr, "fuzz_replay: there is no %s\n", target ? argv[2] : argv[1]);
        return 2;
    }
    const Witness witness(argv[1]);
    const auto run = [&](const std::string& bytes) {
        witness.see(bytes);
        (*target)(bytes);
    };
    for (const std::string& bytes : corpus)
        run(bytes);
    Changes changes(corpus);
    const int count = argc > 3 ? std::atoi(argv[3]) : 0;
    for (int i = 0; i < count; ++i)
        run(changes.next());
    std::printf("%s: %zu inputs, and %d changed ones\n", argv[1], corpus.size(), count);
    return 0;
}

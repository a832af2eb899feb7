// "ptn cell": a client of a running panel's socket.
#include "links/Address.h"
#include "links/SocketLine.h"
#include "tools/ptn/commands/Command.h"

#include <cerrno>
#include <cstring>
#include <iostream>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

namespace ptn
{

namespace
{

class CellCommand : public Command
{
  public:
    const char* name() const override { return "cell"; }
    const char* summary() const override { return "Read, set and watch the cells of a running panel"; }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    bool connectTo();
    std::string requestText() const;
    int printAnswers(int descriptor);

    std::string socket_;
    std::string verb_;
    std::vector<std::string> words_;
    int descriptor_ = -1;
};

void CellCommand::addOptions(CLI::App& line)
{
    line.add_option("SOCKET", socket_, "Path of the socket, as the section 'links' has it")->required();
    line.add_option("VERB", verb_, "get, set, watch or list")
        ->required()
        ->check(CLI::IsMember({"get", "set", "watch", "list"}));
    line.add_option("WORDS", words_, "Cells: CODE or CODE+2; behind 'set' one cell and its value");
    line.footer(
        "ptn cell panel.sock get SPEED LEVEL+2    a line for each: CODE+n, its number, its text in quotes\n"
        "ptn cell panel.sock set SPEED 42\n"
        "ptn cell panel.sock set NAME 'Pump 3'    what is no number is a text\n"
        "ptn cell panel.sock watch SPEED PUMP+1   a line for each change, at most one per tick; until ^C\n"
        "ptn cell panel.sock list                 codes, and how many cells each has\n"
        "\n"
        "Any program of the same user can do the same: the socket takes these lines, without 'ptn cell\n"
        "SOCKET', in UTF-8. A line that begins with 'error' says what is wrong.");
}

bool CellCommand::connectTo()
{
    sockaddr_un address{};
    if (socket_.size() > tessary::SOCKET_PATH_MAX) {
        std::cerr << socket_ << ": the path is too long.\n";
        return false;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, socket_.data(), socket_.size());
    descriptor_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return true;
    std::cerr << socket_ << ": " << std::strerror(errno)
              << ". Name the socket of a panel that runs; 'socket:' in its links makes one.\n";
    return false;
}

std::string CellCommand::requestText() const
{
    std::string text = verb_;
    for (std::size_t i = 0; i < words_.size(); ++i) {
        const bool value = verb_ == "set" && i > 0;
        text +=
            " " + (value && !tessary::ParseNumber(words_[i]) ? tessary::QuotedText(words_[i]) : words_[i]);
    }
    return text + "\n";
}

// As many lines as are to come, or until the panel ends.
int CellCommand::printAnswers(int descriptor)
{
    std::size_t wanted = verb_ == "get" ? std::max<std::size_t>(words_.size(), 1) : 1;
    int status = 0;
    std::string input;
    char buffer[4096];
    for (ssize_t size; (size = read(descriptor, buffer, sizeof buffer)) > 0;) {
        input.append(buffer, static_cast<std::size_t>(size));
        for (std::size_t end; (end = input.find('\n')) != std::string::npos; input.erase(0, end + 1)) {
            const std::string line = input.substr(0, end);
            const bool wrong = line.compare(0, 6, "error ") == 0;
            if (wrong)
                std::cerr << line << "\n";
            else if (verb_ != "set" && (verb_ != "list" || line != "end"))
                std::cout << line << std::endl;
            status = wrong ? 1 : status;
            const bool last = verb_ == "list" ? line == "end" : verb_ != "watch" && --wanted == 0;
            if (last)
                return status;
        }
    }
    if (verb_ != "watch") {
        std::cerr << socket_ << ": the panel has ended.\n";
        return 1;
    }
    return status;
}

int CellCommand::run()
{
    if (verb_ == "set" && words_.size() != 2) {
        std::cerr << "ptn: 'set' needs one cell and its value.\n";
        return 1;
    }
    int status = 1;
    if (connectTo()) {
        const std::string text = requestText();
        const bool sent =
            send(descriptor_, text.data(), text.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(text.size());
        status = sent ? printAnswers(descriptor_) : 1;
    }
    close(descriptor_);
    return status;
}

} // namespace

std::unique_ptr<Command> MakeCell()
{
    return std::make_unique<CellCommand>();
}

} // namespace ptn

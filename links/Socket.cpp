#include "links/Socket.h"

#include "base/EucText.h"
#include "comndata/Cells.h"
#include "comndata/CodeTable.h"
#include "comndata/ComnData.h"

#include <algorithm>
#include <cmath>

namespace tessary
{

namespace
{

constexpr int REQUESTS_PER_TICK = 512;
constexpr std::size_t WATCHES_MAX = 20000;

const char* StoredText(int cell)
{
    const char* text = HasCell(cell) ? ComnData[cell].sData : nullptr;
    return text ? text : "";
}

CellCodes Codes()
{
    CellCodes codes;
    for (std::int32_t i = 0; i < PtrnRecd; ++i) {
        const PTRNCODE& row = PtrnCode[i]; // packed: no reference to its members
        const int first = row.DataNo;
        const int count = row.DataCount;
        codes.emplace(EucToUtf8(CodeOf(row)), std::make_pair(first, count));
    }
    return codes;
}

} // namespace

Socket::Socket(const LinkConnection& connection, Looks& looks, Looks::Who who)
    : Link(connection, looks, who), server_(std::make_shared<SocketServer>(connection.address, Codes())),
      problem_(server_->open())
{
}

Socket::~Socket()
{
    server_->stop();
    server_->end(std::chrono::steady_clock::now());
}

void Socket::stop()
{
    server_->stop();
}

void Socket::end(std::chrono::steady_clock::time_point deadline)
{
    server_->end(deadline);
}

void Socket::tick(double)
{
    server_->rethrow();
    if (!begun_) {
        begun_ = true;
        const bool good = problem_.empty();
        setState(good ? LinkState::Connected : LinkState::Lost, good ? Cause::None : Cause::Unreachable,
                 problem_);
    }
    told_ = false;
    while (!answers_.empty() && server_->answers.push(answers_.front())) {
        answers_.pop_front();
        told_ = true;
    }
    // A client that does not stop asking gets its turn in the next tick.
    ClientRequest request;
    for (int i = 0; i < REQUESTS_PER_TICK && answers_.empty() && server_->requests.pop(request); ++i)
        handle(request);
    tellChanges();
    if (told_)
        server_->wake();
}

void Socket::handle(const ClientRequest& request)
{
    if (request.gone) {
        forget(request.client);
        return;
    }
    const SocketRequest& wanted = request.request;
    switch (wanted.kind) {
    case SocketRequest::Kind::Error:
        answer(request.client, wanted.text);
        break;
    case SocketRequest::Kind::Get:
        answerCell(request.client, wanted.cell, wanted.text);
        break;
    case SocketRequest::Kind::Set:
        if (wanted.value.isText)
            Set_sData(wanted.cell, wanted.value.text.c_str(), __FILE__, __LINE__);
        else
            Set_dData(wanted.cell, wanted.value.number, __FILE__, __LINE__);
        ++counts_.updates;
        answer(request.client, "ok");
        break;
    case SocketRequest::Kind::Watch:
        watch(request.client, wanted);
        break;
    case SocketRequest::Kind::List: {
        ClientAnswer list{request.client, ClientAnswer::Kind::List, "", 0.0, ""};
        push(list);
        break;
    }
    }
}

void Socket::watch(std::uint64_t client, const SocketRequest& request)
{
    if (watches_ >= WATCHES_MAX) {
        answer(client, "error too many cells are watched");
        return;
    }
    const auto [found, added] = watched_.try_emplace(request.cell);
    Watched& watched = found->second;
    if (added) {
        watched.name = request.text;
        watched.number = StoredNumber(request.cell);
        watched.text = StoredText(request.cell);
    }
    if (std::find(watched.clients.begin(), watched.clients.end(), client) == watched.clients.end()) {
        watched.clients.push_back(client);
        ++watches_;
    }
    answerCell(client, request.cell, request.text);
}

void Socket::forget(std::uint64_t client)
{
    for (auto watched = watched_.begin(); watched != watched_.end();) {
        auto& clients = watched->second.clients;
        const auto found = std::find(clients.begin(), clients.end(), client);
        if (found != clients.end()) {
            clients.erase(found);
            --watches_;
        }
        watched = clients.empty() ? watched_.erase(watched) : std::next(watched);
    }
}

void Socket::tellChanges()
{
    for (auto& [cell, watched] : watched_) {
        if (!answers_.empty())
            return; // what has changed meanwhile is told once, later
        const double number = HasCell(cell) ? StoredNumber(cell) : 0.0;
        const bool same = number == watched.number || (std::isnan(number) && std::isnan(watched.number));
        if (same && watched.text == StoredText(cell))
            continue;
        watched.number = number;
        watched.text = StoredText(cell);
        for (const std::uint64_t client : watched.clients)
            answerCell(client, cell, watched.name);
    }
}

void Socket::answer(std::uint64_t client, const std::string& line)
{
    ClientAnswer text{client, ClientAnswer::Kind::Line, line, 0.0, ""};
    push(text);
}

void Socket::answerCell(std::uint64_t client, int cell, const std::string& name)
{
    ClientAnswer value{client, ClientAnswer::Kind::Cell, name, HasCell(cell) ? StoredNumber(cell) : 0.0,
                       StoredText(cell)};
    push(value);
}

void Socket::push(ClientAnswer& answer)
{
    told_ = true;
    if (!server_->answers.push(answer))
        answers_.push_back(std::move(answer));
}

} // namespace tessary

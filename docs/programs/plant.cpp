// Values from outside: packets such as "101 23.5", a data number and its value, that come to a port of UDP.
#include <tessary/tessary.h>

#include <arpa/inet.h>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <glib-unix.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

constexpr int SILENCE = 100; ///< ticks without a packet, shown as a number
constexpr int SILENCE_LIMIT = 50;

int receiver = -1;

// Called by the main loop, between two ticks, when there is a packet.
gboolean TakePacket(gint descriptor, GIOCondition, gpointer)
{
    char text[64];
    const ssize_t size = recv(descriptor, text, sizeof text - 1, 0);
    if (size <= 0)
        return TRUE;
    text[size] = '\0';
    int no = 0;
    double value = 0;
    if (std::sscanf(text, "%d %lf", &no, &value) == 2 && no > SILENCE) {
        Set_dData(no, value, nullptr, 0); // does nothing for a number that is none
        Set_iData(SILENCE, 0, nullptr, 0);
    }
    return TRUE; // go on listening
}

// A key of the application's own, in the profile's section [PLANT].
bool Listen()
{
    const int port = ProfileReadInt(ProfName, "PLANT", "PORT");
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    receiver = socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (receiver < 0 || bind(receiver, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
        tessary::LogText("PLANT", __FILE__, __LINE__, "port %d: %s", port, std::strerror(errno));
        return false;
    }
    g_unix_fd_add(receiver, G_IO_IN, TakePacket, nullptr);
    return true;
}

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    return std::strcmp(name, "Main") == 0 ? new CPtrnDisp : nullptr;
}

int UserInit()
{
    if (Listen())
        return 1;
    MessageBox("Plant", "The plant can not be reached. The log tells why.", 1, 1);
    return 0; // the program ends
}

void UserExit()
{
    if (receiver >= 0)
        close(receiver);
}

// Every 100 ms, before the screens look at the cells.
void UserTimr()
{
    const int silence = Get_iData(SILENCE, nullptr, 0) + 1;
    Set_iData(SILENCE, silence, nullptr, 0);
    Set_Flikr(SILENCE, silence > SILENCE_LIMIT ? 1 : 0, nullptr, 0);
}

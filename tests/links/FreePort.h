// A port for a server of the test.
#pragma once

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

/// One of the loopback's that was free when it was asked for.
inline int freePort()
{
    const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const plain = reinterpret_cast<sockaddr*>(&address);
    EXPECT_EQ(bind(descriptor, plain, size), 0);
    getsockname(descriptor, plain, &size);
    close(descriptor);
    return ntohs(address.sin_port);
}

#!/usr/bin/env python3
"""A device that does not behave: hostile.py MODE PORT. Prints "ready" when it listens.

silent   takes everything and says nothing
garbage  answers with bytes that are no answer
flood    sends bytes for ever without being asked
dribble  sends a byte of a never-ending answer now and then
close    closes at once"""
import os
import socket
import sys
import threading
import time


def serve(mode, peer):
    try:
        if mode == "close":
            peer.close()
            return
        while mode == "flood":
            peer.sendall(os.urandom(65536))
        request = peer.recv(1000)
        while request:
            if mode == "garbage":
                peer.sendall(os.urandom(60))
            while mode == "dribble":
                peer.sendall(request[:1])
                time.sleep(0.2)  # slower than any timeout: that is what is tried
            request = peer.recv(1000)
    except OSError:
        pass


server = socket.socket()
server.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
server.bind(("127.0.0.1", int(sys.argv[2])))
server.listen()
print("ready", flush=True)
while True:
    threading.Thread(target=serve, args=(sys.argv[1], server.accept()[0]), daemon=True).start()

#!/usr/bin/env python3
"""A Modbus device: modbus_device.py tcp PORT | rtu LINE  [refuse=AREA:FIRST-LAST]... [AREA:ADDRESS=VALUE]...

AREA is coil, discrete, holding or input; each has the addresses 0 to 11999, all 0. Prints a line "AREA ADDRESS
VALUE..." for every write, and "ready" when it listens."""
import asyncio
import sys

from pymodbus.datastore import ModbusServerContext, ModbusSlaveContext, ModbusSparseDataBlock
from pymodbus.framer.rtu_framer import ModbusRtuFramer
from pymodbus.server import StartAsyncSerialServer, StartAsyncTcpServer

AREAS = ("coil", "discrete", "holding", "input")
KEYS = {"coil": "co", "discrete": "di", "holding": "hr", "input": "ir"}
ADDRESSES = 12000


class Block(ModbusSparseDataBlock):
    """One area; says what is written."""

    def __init__(self, area, values):
        super().__init__(values)
        self.area = area
        self.told = False

    def validate(self, address, count=1):
        return all(one in self.values for one in range(address, address + count))

    def setValues(self, address, values, use_as_default=False):
        if self.told:
            print(self.area, address, *[int(value) for value in values], flush=True)
        super().setValues(address, values, use_as_default)


def blocks(arguments):
    values = {area: {address: 0 for address in range(ADDRESSES)} for area in AREAS}
    for argument in arguments:
        if argument.startswith("refuse="):
            area, addresses = argument[len("refuse="):].split(":")
            first, last = addresses.split("-")
            for address in range(int(first), int(last) + 1):
                del values[area][address]
        else:
            place, value = argument.split("=")
            area, address = place.split(":")
            values[area][int(address)] = int(value)
    made = {area: Block(area, values[area]) for area in AREAS}
    for block in made.values():
        block.told = True
    return made


async def serve():
    kind, where, rest = sys.argv[1], sys.argv[2], sys.argv[3:]
    made = blocks(rest)
    slave = ModbusSlaveContext(zero_mode=True, **{KEYS[area]: made[area] for area in AREAS})
    context = ModbusServerContext(slaves=slave, single=True)
    if kind == "tcp":
        server = await StartAsyncTcpServer(
            context=context, address=("127.0.0.1", int(where)), allow_reuse_address=True, defer_start=True)
        server.serving.add_done_callback(lambda _: print("ready", flush=True))
    else:
        server = await StartAsyncSerialServer(
            context=context, framer=ModbusRtuFramer, port=where, baudrate=19200, parity="N", defer_start=True)
        await server.start()
        print("ready", flush=True)
    await server.serve_forever()


asyncio.run(serve())

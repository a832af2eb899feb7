#!/usr/bin/env python3
"""The pump station as a Modbus device: plant.py [PORT]. Needs python3-pymodbus."""
import asyncio
import struct
import sys

from pymodbus.datastore import ModbusSequentialDataBlock, ModbusServerContext, ModbusSlaveContext
from pymodbus.server import StartAsyncTcpServer

COILS, DISCRETES, HOLDINGS, INPUTS = 1, 2, 3, 4
STEP = 0.1


def towards(value, target, most):
    return value + max(-most, min(most, target - value))


class Station:
    """Two pumps fill a reservoir, a valve empties it."""

    def __init__(self):
        self.level, self.outflow, self.pressure = 52.0, 35.0, 240.0
        self.inflow, self.temperature = [0.0, 0.0], [24.0, 23.0]

    def step(self, pumps, valve):
        for i, most in enumerate((42.0, 38.0)):
            self.inflow[i] = towards(self.inflow[i], most if pumps[i] else 0.0, 8 * STEP)
            self.temperature[i] = towards(self.temperature[i], 68.0 if pumps[i] else 22.0, STEP)
        self.outflow = towards(self.outflow, valve if self.level > 0 else 0.0, 10 * STEP)
        self.pressure = towards(self.pressure, 200 + 2.5 * sum(self.inflow), 20 * STEP)
        change = 0.06 * (sum(self.inflow) - self.outflow) * STEP
        self.level = max(0.0, min(100.0, self.level + change))

    def registers(self):
        high, low = struct.unpack(">HH", struct.pack(">f", self.pressure))
        numbers = [self.level, *self.inflow, *self.temperature, self.outflow]
        return [round(10 * number) for number in numbers] + [low, high]

    def bits(self):
        return [self.inflow[0] > 1, self.inflow[1] > 1, self.level > 85, self.level < 25]


async def run(slave):
    station = Station()
    while True:
        pumps = slave.getValues(COILS, 0, 2)
        station.step(pumps, min(slave.getValues(HOLDINGS, 0, 1)[0], 100))
        slave.setValues(INPUTS, 0, station.registers())
        slave.setValues(DISCRETES, 0, station.bits())
        await asyncio.sleep(STEP)


async def main():
    block = lambda values: ModbusSequentialDataBlock(0, values)
    slave = ModbusSlaveContext(co=block([0] * 2), di=block([0] * 4), hr=block([35]), ir=block([0] * 8), zero_mode=True)
    asyncio.create_task(run(slave))
    port = int(sys.argv[1]) if len(sys.argv) > 1 else 1502
    print(f"The station listens on port {port}.", flush=True)
    await StartAsyncTcpServer(
        context=ModbusServerContext(slaves=slave, single=True), address=("127.0.0.1", port), allow_reuse_address=True)


# Function codes stand for the areas in the data store: 1 coils, 2 discrete inputs, 3 holding and 4 input registers.
asyncio.run(main())

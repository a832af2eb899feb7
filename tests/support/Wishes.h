// What the environment asks of the tests; docs/testing.md tells what for. Nothing else reads these variables.
#pragma once

#include <string>
#include <vector>

/// The seeds of a random test: 1 to `count`; or only that of TESSARY_SEED, to repeat a failure or to try
/// others.
std::vector<unsigned> seeds(unsigned count);
/// What a failure prints of its seed.
std::string seedText(unsigned seed);

/// The steps of a random walk: TESSARY_STEPS, else `usual`.
int stepCount(int usual);

/// TESSARY_RENEW_GOLDENS is set to something but 0: golden pictures that differ or are missing are written.
bool renewsGoldens();
/// The command that has them written.
extern const char* const RENEW_COMMAND;

// How the sanitizers treat the libraries below this project.
#pragma once

/// Memory that the toolkit and the libraries below it keep until the process ends, in the form of a
/// LeakSanitizer suppression file. Nothing of this project stands here.
extern const char* const LEAK_SUPPRESSIONS;

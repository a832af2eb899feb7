// What start-up reads once and every module may look at.
#pragma once

/// Full path of the profile file; empty until start-up has derived it from the program's path.
extern char ProfName[257];

/// Project directory, profile key "PROJECT" of section "TESSARY".
extern char ProjPath[257];

/// Text language of patterns and messages: 0 first, 1 second, any other value third text.
/// Profile key "LANGUAGE" of section "FONT"; 0 until the drawing resources have been loaded.
extern int Language;

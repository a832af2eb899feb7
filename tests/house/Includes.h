// Who may include whom: the order of the folders, read from the sources themselves.
#pragma once

#include <string>
#include <vector>

/// What is wrong with the includes of the tree at `root`, sorted; empty when nothing is.
///
/// Sources and headers (.cpp, .h) are looked at, outside folders whose names begin with "build" or a dot. Of
/// each include this is told:
///
/// - it goes up: to a folder that the order of the folders puts above the file's own;
/// - it names a toolkit's header (gtk/, gdk/, gdk-pixbuf/, X11/ but X11/keysym.h) where no toolkit is to be
/// seen;
/// - it names a forwarding header: one that holds a single include and nothing else;
/// - it is part of a circle: a source and its header are one part, parts that reach each other are a circle.
///
/// So is a file in a folder that has no place in the order.
///
///     window/Mouse.cpp: "shell/Startup.h" is above window
///     draw/Images, draw/Resource: a circle
std::vector<std::string> includeFaults(const std::string& root);

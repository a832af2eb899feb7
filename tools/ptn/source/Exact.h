// Values that are taken as they stand: what a compiled screen may hold that the other attributes do not say.
#pragma once

#include "tools/ptn/model/Pattern.h"
#include "tools/ptn/yaml/Source.h"

#include <cstdint>

namespace ptn
{

/// Reads "exact" of an item: "rect", "parm: {index: value}", "text", "pattern", "code", "offset", "action"
/// and "reserved". Nothing is compared with the project or the screen; a text may be "bytes: <hex>".
void ReadExactItem(const Source& source, const Subject& label, PatternItem& item, Diagnostics& diagnostics);

/// Whether "exact" gives the corners.
bool HasExactRect(const Source& source);

/// Reads "exact" of a screen: "version", "reserved", and "bytes: {offset: hex}" put over the header.
void ReadExactHeader(const Source& source, HEDRFILE& header, Diagnostics& diagnostics);

/// "{index: value}" into Parm.
void ReadParm(const Source& source, const Subject& label, std::int32_t* values, Diagnostics& diagnostics);

} // namespace ptn

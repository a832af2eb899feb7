// The screens that the framework opens by itself. Their patterns belong to the project, as any other.
#pragma once

namespace tessary
{

constexpr char VERSION_PATTERN[] = "バージョン情報";
constexpr char MAINTENANCE_PATTERN[] = "メンテナンス";

} // namespace tessary

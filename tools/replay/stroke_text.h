// Strokes as a dump writes them.
#pragma once

#include "raster/stroke.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace selvane::replay {

// By kind, in byte order.
inline constexpr std::array<std::string_view, raster::kStrokeKindCount> kStrokeKinds{
    "arc", "circle", "line", "pset", "sector", "text"};

std::size_t Count(const raster::Drawing& drawing, raster::StrokeKind kind);
std::vector<raster::Stroke> Of(const raster::Drawing& drawing, raster::StrokeKind kind);

enum class StrokeNumbers { NineDigits, ThreeDecimals }; // "%.9g" or "%.3f"

// One line without its end, such as "pset 45.87 17.23 224,224,224".
std::string LineOf(const raster::Drawing& drawing, const raster::Stroke& stroke,
                   StrokeNumbers numbers);

// CRC-32 over all lines with three decimals, each ended by a line feed.
std::uint32_t Digest(const raster::Drawing& drawing);

} // namespace selvane::replay

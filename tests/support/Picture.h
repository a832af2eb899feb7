// Pixels: read back from a drawable or the screen, built by a test from the rules, or kept in a file.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

/// Pixels as 0xRRGGBB.
class Picture
{
  public:
    Picture(int width, int height, std::uint32_t ground);

    int width() const { return width_; }
    int height() const { return height_; }
    std::uint32_t at(int x, int y) const;

    /// One pixel; outside the picture nothing happens.
    Picture& set(int x, int y, std::uint32_t rgb);
    /// Box without its right column and bottom row.
    Picture& fill(int x1, int y1, int x2, int y2, std::uint32_t rgb);
    /// One-pixel outline with both corners.
    Picture& frame(int x1, int y1, int x2, int y2, std::uint32_t rgb);
    /// Columns x1..x2 - 1 of a row, rows y1..y2 - 1 of a column.
    Picture& row(int x1, int x2, int y, std::uint32_t rgb);
    Picture& column(int x, int y1, int y2, std::uint32_t rgb);
    /// The pixels of `part` that are not `transparent`, with its corner at (x, y).
    Picture& paste(int x, int y, const Picture& part, std::int64_t transparent = -1);

    /// Number of pixels of a colour.
    int count(std::uint32_t rgb) const;
    /// "x1,y1-x2,y2" of the smallest box, both corners included, of all pixels that are not `ground`; "" for
    /// none.
    std::string bounds(std::uint32_t ground) const;

    /// Writes a PNG file, with a remark on what made it unless that is empty.
    /// @return whether it could be written
    bool save(const std::string& path, const std::string& software = "") const;
    /// Reads an image file; nothing when it is missing or no image.
    /// @param software  receives the remark, when not null
    static std::optional<Picture> load(const std::string& path, std::string* software = nullptr);

    std::vector<std::uint32_t> pixels; ///< row by row

  private:
    int width_;
    int height_;
};

/// True when both are alike; tells the first pixel that differs, and how many do.
testing::AssertionResult same(const Picture& drawn, const Picture& expected);

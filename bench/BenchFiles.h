// A project for measuring, on disk: temporary folder, profile, code table, resources and screens.
#pragma once

#include "comndata/ComnData.h"
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/PtrnFile.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// Is removed from the disk with the object.
class BenchFiles
{
  public:
    static constexpr int WIDTH = 1280;
    static constexpr int HEIGHT = 1024;
    static constexpr int FIRST_CELL = DTNO_SYSTEM; ///< of the code "ITEM"

    /// Writes a project with that many cells of the code "ITEM".
    /// @param start  the screen that a program which is started with this profile shows first
    explicit BenchFiles(int cells, const std::string& start = "")
    {
        std::string name = (std::filesystem::temp_directory_path() / "tessary-bench-XXXXXX").string();
        folder_ = mkdtemp(name.data());
        std::filesystem::create_directory(folder_ + "/Bitmap");
        const char* const edition = std::getenv("BENCH_EDITION");
        write("panel.ini", "[TESSARY]\nDISPSIZE=1280,1024\nEDITION=" + std::string(edition ? edition : "1") +
                               "\nPROJECT=" + folder_ + "\n[PTRN]\nPTRNSTART=" + start +
                               "\n[FONT]\nLANGUAGE=0\n"
                               "FONTNAME0=-*-fixed-medium-r-normal--14-*-*-*-c-*-*-*\n");
        write("PtrnCode", codeRow("SYSTEM", FIRST_CELL - 1, 1) + codeRow("ITEM", cells, FIRST_CELL));
        write("PtrnColr", colors());
        write("PtrnMark", std::string(CONT_MARK * SIZE_MARK, '\x3C'));
        write("Bitmap/lamp.ppm", "P6\n16 16\n255\n" + std::string(16 * 16 * 3, '\x7F'));
    }

    ~BenchFiles()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    BenchFiles(const BenchFiles&) = delete;
    BenchFiles& operator=(const BenchFiles&) = delete;

    const std::string& folder() const { return folder_; }

    /// Writes the screen `name`: items of all types in turn, side by side, with a title bar and a clock.
    /// @param bound  how many of the items are bound to a cell of their own, evenly spread
    void screen(const char* name, int count, int bound, SIZE size = {WIDTH, HEIGHT}) const
    {
        HEDRFILE header = bareHeader(name, size);
        header.Parm1[tessary::HEDR_TITLE_HEIGHT] = TITLE_HEIGHT;
        header.Parm1[tessary::HEDR_TITLE_BACK] = 20;
        header.Parm1[tessary::HEDR_CLOCK] = 3;

        std::vector<Item> items;
        for (int i = 0; i < count; i++) {
            const auto before = [&](int item) {
                return static_cast<int>(static_cast<std::int64_t>(item) * bound / count);
            };
            const bool hasCell = before(i + 1) > before(i);
            const tessary::ItemClass& schema = *tessary::FindItemClass(i % CONT_PTRN + 1);
            Item item{newItem(schema), schema.text == tessary::ItemText::BitmapName ? "lamp.ppm" : "圧力A",
                      hasCell ? "ITEM" : ""};
            item.record.ID_No = hasCell ? before(i) : 0;
            place(item.record, i, count, size);
            items.push_back(item);
        }
        writeScreen(name, header, items);
    }

    /// Writes the screen `name` that has nothing but numeric fields with one decimal on a plain body; field i
    /// shows cell i of the code.
    /// @param places  the upper left corner of each field
    /// @param digits  width of a field in characters
    void fields(const char* name, const std::vector<POINT>& places, int digits) const
    {
        std::vector<Item> items;
        for (const POINT& place : places) {
            Item item{newItem(*tessary::FindItemClass(PTRN_NUMR)), "", "ITEM"};
            item.record.ID_No = static_cast<std::int32_t>(items.size());
            item.record.Parm[tessary::PARM_X1] = place.x;
            item.record.Parm[tessary::PARM_Y1] = place.y;
            item.record.Parm[tessary::TEXT_BACKED] = 1;
            item.record.Parm[tessary::FIELD_WIDTH] = digits;
            item.record.Parm[tessary::FIELD_DECIMALS] = 1;
            items.push_back(item);
        }
        writeScreen(name, bareHeader(name, {WIDTH, HEIGHT}), items);
    }

  private:
    static constexpr int TITLE_HEIGHT = 24;
    static constexpr int BODY_COLOR = 30;

    struct Item {
        PTRNFILE record;
        std::string text;
        std::string code;
    };

    void write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder_ + "/" + name, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

    void writeScreen(const std::string& name, HEDRFILE header, const std::vector<Item>& items) const
    {
        std::string records;
        std::string texts;
        for (const Item& item : items) {
            records.append(reinterpret_cast<const char*>(&item.record), sizeof item.record);
            for (const std::string& field : {item.text, item.text, item.text, std::string(), item.code})
                texts += field + '\0';
        }
        header.DataCount = static_cast<std::int32_t>(items.size());
        header.TextSize = static_cast<std::int32_t>(texts.size());
        write(name + ".ptn",
              std::string(reinterpret_cast<const char*>(&header), sizeof header) + records + texts);
    }

    template <typename Number> static std::string bytes(Number number)
    {
        return std::string(reinterpret_cast<const char*>(&number), sizeof number);
    }

    static std::string codeRow(std::string code, std::int32_t count, std::int32_t first)
    {
        code.resize(SIZE_ID_CODE + 2);
        return code + bytes(count) + bytes(first) + bytes(std::int32_t{0});
    }

    static std::string colors()
    {
        std::string records;
        for (std::int32_t no = 0; no < CONT_COLR; no++)
            records += bytes(no * 655) + bytes(no * 37 % 100 * 655) + bytes(65535 - no * 655);
        return records;
    }

    /// A screen without a title bar.
    static HEDRFILE bareHeader(const char* name, SIZE size)
    {
        HEDRFILE header{};
        header.Parm1[tessary::HEDR_WIDTH] = size.cx;
        header.Parm1[tessary::HEDR_HEIGHT] = size.cy;
        header.Parm1[tessary::HEDR_BODY_COLOR] = BODY_COLOR;
        std::snprintf(header.PtrnName1, sizeof header.PtrnName1, "%s", name);
        return header;
    }

    /// The values that the schema gives a new item; its colours hold their own index.
    static PTRNFILE newItem(const tessary::ItemClass& schema)
    {
        PTRNFILE record{};
        record.Type = schema.type;
        for (const tessary::ParmSchema& parm : schema.parms)
            for (int variant = 0; variant < parm.count; variant++)
                record.Parm[parm.index + variant] =
                    parm.kind == tessary::ParmKind::Color  ? parm.index + variant
                    : parm.kind == tessary::ParmKind::Mark ? CONT_MARK + variant
                                                           : parm.initial;
        record.Parm[tessary::PARM_CLEAR] = BODY_COLOR;
        return record;
    }

    /// Puts an item into its part of the screen.
    static void place(PTRNFILE& record, int index, int count, SIZE size)
    {
        int columns = 1;
        while (columns * columns < count)
            columns++;
        const int pitchX = size.cx / columns;
        const int pitchY = (size.cy - TITLE_HEIGHT) / columns;
        record.Parm[tessary::PARM_X1] = index % columns * pitchX;
        record.Parm[tessary::PARM_Y1] = TITLE_HEIGHT + index / columns * pitchY;
        record.Parm[tessary::PARM_X2] = record.Parm[tessary::PARM_X1] + pitchX - 2;
        record.Parm[tessary::PARM_Y2] = record.Parm[tessary::PARM_Y1] + pitchY - 2;
    }

    std::string folder_;
};

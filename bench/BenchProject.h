// A project for measuring: temporary folder, code table, resources and screens of mixed items.
#pragma once

#include "comndata/ComnData.h"
#include "config/Settings.h"
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemSchema.h"
#include "pattern/PtrnFile.h"
#include "shell/Locale.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <gtk/gtk.h>
#include <string>
#include <vector>

/// Processor time of this process in seconds, without that of the X server.
inline double ProcessorTime()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

class BenchProject
{
  public:
    static constexpr int width = 1280;
    static constexpr int height = 1024;
    static constexpr int firstCell = DTNO_SYSTEM; ///< of the code "ITEM"

    /// Connects to the X server of $DISPLAY and loads a project with that many cells of the code "ITEM".
    explicit BenchProject(int cells)
    {
        UseEucLocale();
        gtk_disable_setlocale();
        if (!gtk_init_check(nullptr, nullptr)) {
            std::fprintf(stderr, "No X server at $DISPLAY.\n");
            std::exit(1);
        }

        std::string name = (std::filesystem::temp_directory_path() / "tessary-bench-XXXXXX").string();
        folder_ = mkdtemp(name.data());
        std::filesystem::create_directory(folder_ + "/Bitmap");
        write("panel.ini", "[TESSARY]\nDISPSIZE=1280,1024\n[FONT]\nLANGUAGE=0\n"
                           "FONTNAME0=-*-fixed-medium-r-normal--14-*-*-*-c-*-*-*\n");
        write("PtrnCode", codeRow("SYSTEM", firstCell - 1, 1) + codeRow("ITEM", cells, firstCell));
        write("PtrnColr", colors());
        write("PtrnMark", std::string(CONT_MARK * SIZE_MARK, '\x3C'));
        write("Bitmap/lamp.ppm", "P6\n16 16\n255\n" + std::string(16 * 16 * 3, '\x7F'));
        std::snprintf(ProfName, sizeof ProfName, "%s/panel.ini", folder_.c_str());
        std::snprintf(ProjPath, sizeof ProjPath, "%s", folder_.c_str());
        ComnDataInit();
        DrawCntlInit();
    }

    ~BenchProject()
    {
        DrawCntlExit();
        ComnDataExit();
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    BenchProject(const BenchProject&) = delete;
    BenchProject& operator=(const BenchProject&) = delete;

    /// Writes the screen `name`: items of all types in turn, side by side, with a title bar and a clock.
    /// @param bound  how many of the items are bound to a cell of their own, evenly spread
    void screen(const char* name, int count, int bound) const
    {
        HEDRFILE header{};
        header.DataCount = count;
        header.Parm1[HEDR_WIDTH] = width;
        header.Parm1[HEDR_HEIGHT] = height;
        header.Parm1[HEDR_TITLE_HEIGHT] = titleHeight;
        header.Parm1[HEDR_TITLE_BACK] = 20;
        header.Parm1[HEDR_CLOCK] = 3;
        header.Parm1[HEDR_BODY_COLOR] = 30;
        std::snprintf(header.PtrnName1, sizeof header.PtrnName1, "%s", name);

        std::string records;
        std::string texts;
        for (int i = 0; i < count; i++) {
            const auto before = [&](int item) {
                return static_cast<int>(static_cast<std::int64_t>(item) * bound / count);
            };
            const bool hasCell = before(i + 1) > before(i);
            const ItemSchema& schema = *FindItemSchema(i % CONT_PTRN + 1);
            PTRNFILE record = item(schema, i, count);
            record.ID_No = hasCell ? before(i) : 0;
            records.append(reinterpret_cast<const char*>(&record), sizeof record);
            const std::string text = schema.text == ItemText::BitmapName ? "lamp.ppm" : "圧力A";
            for (const std::string& field :
                 {text, text, text, std::string(), std::string(hasCell ? "ITEM" : "")})
                texts += field + '\0';
        }
        header.TextSize = static_cast<std::int32_t>(texts.size());
        write(std::string(name) + ".ptn",
              std::string(reinterpret_cast<const char*>(&header), sizeof header) + records + texts);
    }

  private:
    static constexpr int titleHeight = 24;

    void write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder_ + "/" + name, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
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

    /// The values that the schema gives a new item; its colours hold their own index.
    static PTRNFILE item(const ItemSchema& schema, int index, int count)
    {
        PTRNFILE record{};
        record.Type = schema.type;
        for (const ParmSchema& parm : schema.parms)
            for (int variant = 0; variant < parm.count; variant++)
                record.Parm[parm.index + variant] = parm.kind == ParmKind::Color  ? parm.index + variant
                                                    : parm.kind == ParmKind::Mark ? CONT_MARK + variant
                                                                                  : parm.initial;
        record.Parm[PARM_CLEAR] = 30;

        int columns = 1;
        while (columns * columns < count)
            columns++;
        const int pitchX = width / columns;
        const int pitchY = (height - titleHeight) / columns;
        record.Parm[PARM_X1] = index % columns * pitchX;
        record.Parm[PARM_Y1] = titleHeight + index / columns * pitchY;
        record.Parm[PARM_X2] = record.Parm[PARM_X1] + pitchX - 2;
        record.Parm[PARM_Y2] = record.Parm[PARM_Y1] + pitchY - 2;
        return record;
    }

    std::string folder_;
};

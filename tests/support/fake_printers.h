#pragma once

#include "platform/errors.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/printers.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

/// A printer that keeps its pages: A4, 600 dots an inch, lines of a fifth of an inch.
struct FakePrinter final : Printer {
    struct Page {
        std::vector<std::string> lines; ///< of Print; bold ones begin with "*"
        std::string text;               ///< of formatRange
        std::vector<FormatRange> ranges;
        std::vector<std::string> centred;
        std::vector<PaperRectangle> pictures;
        std::vector<std::string> drawings;
    };
    static constexpr int lineHeight = 288;

    int orientation = orientation::portrait;
    int width = 11906;
    int height = 16838;
    int offsetX = 100;              ///< 240 twips
    int offsetY = 150;              ///< 360 twips
    std::optional<int> failsAtPage; ///< from 1
    std::vector<Page> pages;
    int ended = 0;
    int killed = 0;
    int released = 0;
    bool bold = false;

    int Orientation() const override { return orientation; }
    void setOrientation(int value) override { orientation = value; }
    int Width() const override { return width; }
    int Height() const override { return height; }
    int physicalOffsetX() const override { return offsetX; }
    int physicalOffsetY() const override { return offsetY; }
    float twipsPerPixelX() const override { return 2.4F; }
    float twipsPerPixelY() const override { return 2.4F; }
    void setFontBold(bool on) override { bold = on; }
    void Print(const std::string& text) override { page().lines.push_back((bold ? "*" : "") + text); }
    void PrintCentred(const std::string& text, int, int, int) override { page().centred.push_back(text); }
    void NewPage() override
    {
        pages.emplace_back();
        if (failsAtPage && static_cast<int>(pages.size()) >= *failsAtPage)
            throw RuntimeError(ErrorCode::PrinterError, "Out of paper");
    }
    void EndDoc() override { ++ended; }
    void KillDoc() override { ++killed; }
    std::size_t formatRange(const StyledText& text, const FormatRange& range) override
    {
        page().ranges.push_back(range);
        const int lines = (range.rectangle.bottom - range.rectangle.top) / lineHeight;
        std::size_t next = range.start;
        for (int line = 0; line < lines && next < range.end; ++line) {
            const std::size_t end = text.text.find('\n', next);
            next = end == std::string::npos ? range.end : end + 1;
        }
        page().text += text.text.substr(range.start, next - range.start);
        return next;
    }
    void releaseFormat() override { ++released; }
    void PaintPicture(const LoadedPicture&, const PaperRectangle& place) override { page().pictures.push_back(place); }
    void PaintDrawing(const std::string& svg, const PaperRectangle&) override { page().drawings.push_back(svg); }

    Page& page()
    {
        if (pages.empty()) NewPage();
        return pages.back();
    }
};

struct FakePrinters final : Printers {
    int count = 1;
    FakePrinter printer;
    int setUps = 0;
    std::vector<std::string> previews; ///< titles
    FakePrinter other;                 ///< the paper of the last preview or PDF file

    int Count() override { return count; }
    Printer& current() override { return printer; }
    void setUp() override { ++setUps; }
    void preview(const std::string& title, const PrintJob& job) override
    {
        previews.push_back(title);
        other = {};
        job(other);
    }
    std::string pdf(const std::string& title, const PrintJob& job) override
    {
        other = {};
        job(other);
        return "PDF of " + title + ", pages: " + std::to_string(other.pages.size());
    }
};

/// Picture files are texts, "PICTURE 640 480".
struct FakePictures final : Pictures {
    struct Fake final : LoadedPicture {
        int w = 0;
        int h = 0;
        int width() const override { return w; }
        int height() const override { return h; }
    };
    explicit FakePictures(const FileSystem& theFiles) : files(theFiles) {}

    const FileSystem& files;
    int loads = 0;
    std::vector<std::string> openedOutside;

    std::shared_ptr<const LoadedPicture> load(const std::string& path) override
    {
        ++loads;
        auto picture = std::make_shared<Fake>();
        if (std::sscanf(files.read(path).c_str(), "PICTURE %d %d", &picture->w, &picture->h) != 2)
            throw RuntimeError(ErrorCode::InvalidPicture, "Invalid picture");
        return picture;
    }
    std::string bitmap(const LoadedPicture& picture) override
    {
        return "BITMAP " + std::to_string(picture.width()) + " " + std::to_string(picture.height());
    }
    void openOutside(const std::string& path) override { openedOutside.push_back(path); }
};

} // namespace tarvex

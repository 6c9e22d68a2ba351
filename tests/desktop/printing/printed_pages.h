#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace tarvex {

/// What a PDF file looks like to other programs.
struct PrintedPages {
    static constexpr int dotsPerInch = 50;

    /// Has poppler's tools read the file; throws std::runtime_error when they can't.
    explicit PrintedPages(const std::string& pdf);

    std::vector<QStringList> text; ///< of each page, its lines that aren't empty, as they are laid out
    std::vector<QImage> pages;

    /// Where a page has anything but white.
    QRect ink(std::size_t page) const;
    /// A page has a spot of about this colour.
    bool has(std::size_t page, QColor colour) const;
};

} // namespace tarvex

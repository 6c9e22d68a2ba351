#pragma once

#include "platform/pictures.h"

#include <QImage>

namespace tarvex {

class DriveMap;

class QtPicture final : public LoadedPicture {
public:
    explicit QtPicture(QImage image) : m_image(std::move(image)) {}
    int width() const override { return m_image.width(); }
    int height() const override { return m_image.height(); }
    const QImage& image() const { return m_image; }

private:
    QImage m_image;
};

/// Reads what Qt and its plugins read.
class QtPictures final : public Pictures {
public:
    /// The drives outlive this.
    explicit QtPictures(const DriveMap& drives) : m_drives(drives) {}
    std::shared_ptr<const LoadedPicture> load(const std::string& path) override;
    std::string bitmap(const LoadedPicture& picture) override;
    void openOutside(const std::string& path) override;

private:
    const DriveMap& m_drives;
};

} // namespace tarvex

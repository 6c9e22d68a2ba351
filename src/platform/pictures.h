#pragma once

#include <memory>
#include <string>

namespace tarvex {

/// A picture that was read. Views and printers of the same platform know what is in it.
class LoadedPicture {
public:
    virtual ~LoadedPicture() = default;
    /// In pixels, at least 1.
    virtual int width() const = 0;
    virtual int height() const = 0;
};

/// Reads and writes picture files.
class Pictures {
public:
    virtual ~Pictures() = default;
    /// Reads a file of any format that the system reads, by its contents and not by its extension; of a moving picture
    /// the first image. Nothing that the file refers to is fetched. Throws RuntimeError: the file's own error, or
    /// InvalidPicture for what is no picture or would need too much memory.
    virtual std::shared_ptr<const LoadedPicture> load(const std::string& path) = 0;
    /// The bytes of the picture as a Windows bitmap. Throws RuntimeError.
    virtual std::string bitmap(const LoadedPicture& picture) = 0;
    /// Has the system open the file, as a double click on it does. A file that isn't there: nothing happens.
    virtual void openOutside(const std::string& path) = 0;
};

} // namespace tarvex

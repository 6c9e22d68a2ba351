#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarvex {

/// The help collection as Qt Help reads it. It is made by a library of its own, because Qt Help brings a database along
/// that the program has no other use for, and is loaded when the handbook is first wanted.
class HelpCollection {
public:
    virtual ~HelpCollection() = default;
    /// A file of the collection by its name; nothing without one.
    virtual std::optional<QByteArray> file(const QString& name) const = 0;
    /// Why the collection can't be read; empty: it can.
    virtual QString error() const = 0;
};

/// Of the library's only function, which opens the collection in a file. The caller owns what it returns.
using OpenHelpCollection = HelpCollection* (*)(const QString& path);
constexpr char openHelpCollectionName[] = "openTarvexHelpCollection";

} // namespace tarvex

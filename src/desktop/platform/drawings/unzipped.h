#pragma once

#include <QByteArray>

namespace tarvex {

/// Whether these are the first bytes of a gzip file, which a drawing *.svgz is.
bool isZipped(const QByteArray& bytes);

/// The contents of a gzip file; empty when it is damaged or its contents are larger than `most` bytes.
QByteArray unzipped(const QByteArray& bytes, qsizetype most);

} // namespace tarvex

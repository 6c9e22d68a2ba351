#include "desktop/platform/drawings/unzipped.h"

#include <algorithm>
#include <limits>

#include <zlib.h>

namespace tarvex {

namespace {

class Inflater {
public:
    Inflater()
    {
        constexpr int gzipOnly = 16 + MAX_WBITS;
        m_ready = inflateInit2(&m_stream, gzipOnly) == Z_OK;
    }
    ~Inflater()
    {
        if (m_ready) inflateEnd(&m_stream);
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    QByteArray inflated(QByteArray bytes, qsizetype most)
    {
        if (!m_ready || bytes.size() > std::numeric_limits<int>::max()) return {};
        m_stream.next_in = reinterpret_cast<Bytef*>(bytes.data());
        m_stream.avail_in = static_cast<uInt>(bytes.size());
        QByteArray contents;
        int result = Z_OK;
        while (result == Z_OK) {
            constexpr qsizetype piece = 256 * 1024;
            const qsizetype have = contents.size();
            if (have > most) return {};
            contents.resize(have + piece);
            m_stream.next_out = reinterpret_cast<Bytef*>(contents.data() + have);
            m_stream.avail_out = static_cast<uInt>(piece);
            result = inflate(&m_stream, Z_NO_FLUSH);
            contents.resize(have + piece - static_cast<qsizetype>(m_stream.avail_out));
        }
        return result == Z_STREAM_END && contents.size() <= most ? contents : QByteArray();
    }

private:
    z_stream m_stream{};
    bool m_ready = false;
};

} // namespace

bool isZipped(const QByteArray& bytes) { return bytes.startsWith("\x1f\x8b"); }

QByteArray unzipped(const QByteArray& bytes, qsizetype most) { return Inflater().inflated(bytes, most); }

} // namespace tarvex

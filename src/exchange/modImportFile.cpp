#include "exchange/modImportFile.h"

#include "base/error.h"
#include "base/errornumbers.h"

#include <QFileInfo>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 chunkSize = 64 * 1024;
constexpr qint64 longestByteOrderMark = 4;

// Where Windows-1252 is not Latin 1; the five bytes without a character stay what they are.
constexpr std::array<char16_t, 32> windows1252From80 = {
    0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008d, 0x017d, 0x008f, 0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178,
};

char16_t fromWindows1252(uchar byte)
{
    const uint place = uint(byte) - 0x80;
    return place < windows1252From80.size() ? windows1252From80[place] : char16_t(byte);
}

[[noreturn]] void refuse(const QString &path, const QString &reason)
{
    throwError(FileAccessError, "The File '"_L1 + path + "' could not be read: "_L1 + reason);
}

LineStream::Encoding markedEncoding(const QString &path)
{
    if (QFileInfo(path).isDir())
        refuse(path, u"It is a folder."_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, file.errorString());
    return QStringConverter::encodingForData(file.read(longestByteOrderMark));
}

int countLines(LineStream &lines)
{
    int count = 0;
    for (QString line; lines.readLine(line);)
        ++count;
    return count;
}

} // namespace

LineStream::LineStream(const QString &path, Encoding encoding) : m_file(path)
{
    if (!m_file.open(QIODevice::ReadOnly))
        refuse(path, m_file.errorString());
    if (encoding)
        m_decoder.emplace(*encoding);
}

bool LineStream::readLine(QString &line)
{
    qsizetype searched = m_begin;
    for (;;) {
        if (m_lineFeedBelongsToLast && m_begin < m_text.size()) {
            m_lineFeedBelongsToLast = false;
            if (m_text[m_begin] == u'\n')
                searched = ++m_begin;
        }
        while (searched < m_text.size() && m_text[searched] != u'\n' && m_text[searched] != u'\r')
            ++searched;
        if (searched < m_text.size()) {
            line = m_text.sliced(m_begin, searched - m_begin);
            m_lineFeedBelongsToLast = m_text[searched] == u'\r';
            m_begin = searched + 1;
            return true;
        }
        searched -= m_begin;
        m_text.remove(0, m_begin);
        m_begin = 0;
        if (!readChunk())
            break;
    }
    line = std::exchange(m_text, QString());
    return !line.isEmpty();
}

bool LineStream::sawInvalidBytes() const
{
    return m_decoder && m_decoder->hasError();
}

bool LineStream::readChunk()
{
    if (!m_file.isOpen())
        return false;
    const QByteArray bytes = m_file.read(chunkSize);
    if (m_file.error() != QFileDevice::NoError)
        refuse(m_file.fileName(), m_file.errorString());
    if (!bytes.isEmpty()) {
        append(bytes);
        return true;
    }
    m_file.close();
    // A character that is cut off at the end is only seen with something behind it.
    if (m_decoder && m_decoder->isValid()) {
        const QString rest = m_decoder->decode("\n");
        if (rest.size() > 1)
            m_text += rest.chopped(1);
    }
    return false;
}

void LineStream::append(QByteArrayView bytes)
{
    if (m_decoder) {
        m_text += m_decoder->decode(bytes);
        return;
    }
    const qsizetype before = m_text.size();
    m_text.resize(before + bytes.size());
    for (qsizetype i = 0; i < bytes.size(); ++i)
        m_text[before + i] = QChar(fromWindows1252(uchar(bytes[i])));
}

ImportFile::ImportFile(const QString &path)
{
    const LineStream::Encoding marked = markedEncoding(path);
    LineStream::Encoding encoding = marked.value_or(QStringConverter::Utf8);
    LineStream probe(path, encoding);
    m_lineCount = countLines(probe);
    if (probe.sawInvalidBytes()) {
        if (marked)
            refuse(path, "It is marked as "_L1 +
                             QLatin1StringView(QStringConverter::nameForEncoding(*marked)) +
                             " and holds bytes that are no text of it."_L1);
        encoding.reset();
        LineStream again(path, encoding);
        m_lineCount = countLines(again);
    }
    m_lines.emplace(path, encoding);
}

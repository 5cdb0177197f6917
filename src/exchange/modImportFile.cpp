#include "exchange/modImportFile.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "base/windows1252.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 chunkSize = 64 * 1024;
// The good lines are in memory until all are read.
constexpr qint64 largestFile = 512 * 1024 * 1024;
constexpr qsizetype longestLine = 1024 * 1024;

[[noreturn]] void refuse(const QString &path, const QString &reason)
{
    throwError(FileAccessError, "The File '"_L1 + path + "' could not be read: "_L1 + reason);
}

/// UTF-16 by its looks: of most characters one byte is 0, always the same one of the two.
LineStream::Encoding alternatingEncoding(QByteArrayView bytes)
{
    qsizetype zeros[2] = {};
    for (qsizetype i = 0; i < bytes.size(); ++i)
        zeros[i % 2] += bytes[i] == 0 ? 1 : 0;
    const auto isHigh = [&](int half) { return zeros[half] > bytes.size() / 4 && zeros[1 - half] == 0; };
    if (isHigh(1))
        return QStringConverter::Utf16LE;
    if (isHigh(0))
        return QStringConverter::Utf16BE;
    return std::nullopt;
}

LineStream::Encoding encodingByBeginning(const QString &path)
{
    if (QFileInfo(path).isDir())
        refuse(path, u"It is a folder."_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, file.errorString());
    if (file.size() > largestFile)
        refuse(path, u"It is larger than %1 MB. Import it in parts."_s.arg(largestFile / (1024 * 1024)));
    const QByteArray beginning = file.read(chunkSize);
    const LineStream::Encoding marked = QStringConverter::encodingForData(beginning);
    return marked ? marked : alternatingEncoding(beginning);
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
            take(line, searched - m_begin);
            m_lineFeedBelongsToLast = m_text[searched] == u'\r';
            m_begin = searched + 1;
            return true;
        }
        searched -= m_begin;
        m_text.remove(0, m_begin);
        m_begin = 0;
        if (searched > longestLine) {
            m_dropped = true;
            m_text.truncate(longestLine);
            searched = longestLine;
        }
        if (!readChunk())
            break;
    }
    const bool isLine = !m_text.isEmpty();
    take(line, m_text.size());
    m_text.clear();
    return isLine;
}

void LineStream::take(QString &line, qsizetype size)
{
    m_isCut = std::exchange(m_dropped, false) || size > longestLine;
    line = m_text.sliced(m_begin, std::min(size, longestLine));
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
    // A character that is cut off at the end is only seen with something after it.
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
        m_text[before + i] = windows1252::character(uchar(bytes[i]));
}

ImportFile::ImportFile(const QString &path)
{
    const LineStream::Encoding marked = encodingByBeginning(path);
    LineStream::Encoding encoding = marked.value_or(QStringConverter::Utf8);
    LineStream probe(path, encoding);
    m_lineCount = countLines(probe);
    if (probe.sawInvalidBytes()) {
        if (marked)
            refuse(path, "It begins as "_L1 + QLatin1StringView(QStringConverter::nameForEncoding(*marked)) +
                             " and holds bytes that are not text of it."_L1);
        encoding.reset();
        LineStream again(path, encoding);
        m_lineCount = countLines(again);
    }
    m_lines.emplace(path, encoding);
}

#include "exchange/modImportFile.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "base/windows1252.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 chunkSize = 64 * 1024;
constexpr qint64 longestByteOrderMark = 4;

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
        m_text[before + i] = windows1252::character(uchar(bytes[i]));
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

#pragma once

#include <QFile>
#include <QString>
#include <QStringDecoder>

#include <optional>

/// Decodes a stream of lines chunk by chunk.
class LineStream final
{
public:
    /// UTF-8, UTF-16 and UTF-32 as given; Windows-1252 for nothing.
    using Encoding = std::optional<QStringConverter::Encoding>;

    /// Raises FileAccessError with the path and the reason.
    LineStream(const QString &path, Encoding encoding);

    /// The next line without its end (\n, \r\n or \r); false after the last. Of an endless line only the
    /// beginning is kept (see isCut()). An end of
    /// line at the end of the file begins no further line. Raises FileAccessError.
    [[nodiscard]] bool readLine(QString &line);
    /// Whether the last line was longer than what is kept of it.
    [[nodiscard]] bool isCut() const { return m_isCut; }
    /// Whether bytes were met so far that are no text of the encoding.
    [[nodiscard]] bool sawInvalidBytes() const;

private:
    [[nodiscard]] bool readChunk();
    void append(QByteArrayView bytes);
    void take(QString &line, qsizetype size);

    QFile m_file;
    std::optional<QStringDecoder> m_decoder;
    QString m_text; // decoded and not yet given out from m_begin on
    qsizetype m_begin = 0;
    bool m_lineFeedBelongsToLast = false;
    bool m_dropped = false; ///< of the line at hand
    bool m_isCut = false;
};

/// The lines of an import file. The encoding is that of a byte order mark, otherwise
/// UTF-16 when its bytes alternate as those of UTF-16 do, UTF-8 when the whole file is valid UTF-8, otherwise
/// Windows-1252; one pass over the file finds that out and counts the lines. Memory holds a chunk and the
/// beginning of a line, not the file.
class ImportFile final
{
public:
    /// Raises FileAccessError with the path and the reason.
    explicit ImportFile(const QString &path);

    [[nodiscard]] int lineCount() const { return m_lineCount; }
    [[nodiscard]] bool readLine(QString &line) { return m_lines->readLine(line); }
    [[nodiscard]] bool isLineCut() const { return m_lines->isCut(); }

private:
    int m_lineCount = 0;
    std::optional<LineStream> m_lines;
};

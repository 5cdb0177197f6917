#pragma once

#include <QBuffer>
#include <QFont>
#include <QPainter>
#include <QString>

#include <memory>

class QPdfWriter;

namespace printing {

/// Pages of A4 paper in landscape, 297 mm by 210 mm, on a printer or in a PDF file, which differ in nothing
/// else. Positions are in millimetres from the top left corner of the paper.
///
///     PageDevice pages(PdfFile{path, title});
///     pages.newPage();
///     pages.setFont(12, QFont::Bold);
///     pages.text(15, 20, title);
///     pages.finish();
///
/// Fonts are Arial, or Liberation Sans, which has the same widths, where that is not installed.
class PageDevice final
{
public:
    struct Printer
    {
        QString name;
        QString title; ///< of the jobs
    };
    struct PdfFile
    {
        QString path;
        QString title;
    };
    explicit PageDevice(const Printer &printer);
    /// Nothing is at the path before finish().
    explicit PageDevice(const PdfFile &file);
    /// Pages that were not finished are dropped: no job, and the file as it was before.
    ~PageDevice();
    PageDevice(const PageDevice &) = delete;
    PageDevice &operator=(const PageDevice &) = delete;

    // Raise PrinterError or FileAccessError when the printer does not take a job, or the file cannot be
    // written. The device is of no use then.

    /// Begins the next page, the first one too. Everything below needs one.
    void newPage();
    /// The next page begins a document of its own: on a printer the pages so far are a job that is
    /// printed now. A PDF file goes on with the next page.
    void endDocument();
    /// Ends the last document. A PDF file takes the place of one that was there.
    void finish();

    void setFont(double points, QFont::Weight weight);
    /// In dots of 1/600 of an inch.
    void setLineWidth(int dots);
    /// Of the font: from the top of its tallest letters to the bottom of its lowest.
    [[nodiscard]] double textHeight() const;
    [[nodiscard]] double textWidth(const QString &text) const;
    /// One line whose top left corner is at the position; line breaks and tabs are printed as spaces.
    void text(double x, double y, const QString &text);
    void line(double x1, double y1, double x2, double y2);

private:
    class Output;
    class JobOutput;
    class FileOutput;

    [[nodiscard]] double dots(double millimetres) const;
    [[nodiscard]] double millimetres(double dots) const;
    [[nodiscard]] QFontMetricsF metrics() const;
    void begin();
    void closeOutput();

    std::unique_ptr<Output> m_output;
    QString m_title;
    // The painter is destroyed first, then what it writes to.
    QBuffer m_document;
    std::unique_ptr<QPdfWriter> m_writer;
    QPainter m_painter;
};

} // namespace printing

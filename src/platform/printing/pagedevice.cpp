#include "platform/printing/pagedevice.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "platform/printing/printers.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace printing {
namespace {

constexpr double millimetresInInch = 25.4;
constexpr double lineDotsInInch = 600;

} // namespace

/// Where complete documents go.
class PageDevice::Output
{
public:
    Output() = default;
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;
    virtual ~Output() = default;

    /// Before the first page of a document.
    virtual void prepare() = 0;
    virtual void take(const QByteArray &document) = 0;
    [[nodiscard]] virtual bool takesManyDocuments() const = 0;
};

class PageDevice::JobOutput final : public PageDevice::Output
{
public:
    explicit JobOutput(Printer printer) : m_printer(std::move(printer)) {}

    void prepare() override {}
    void take(const QByteArray &document) override
    {
        try {
            print(m_printer.name, m_printer.title, document);
        } catch (const Error &error) {
            throwError(error.number(),
                       error.description() % "\r\nPrint jobs sent before it: "_L1 % QString::number(m_sent));
        }
        ++m_sent;
    }
    [[nodiscard]] bool takesManyDocuments() const override { return true; }

private:
    Printer m_printer;
    int m_sent = 0;
};

/// Written beside and renamed, so that a full disk leaves the old file.
class PageDevice::FileOutput final : public PageDevice::Output
{
public:
    explicit FileOutput(const QString &path) : m_file(path) {}

    void prepare() override { require(m_file.open(QIODevice::WriteOnly)); }
    void take(const QByteArray &document) override
    {
        // A full disk takes the first part, and gives its reason for the next.
        for (qint64 written = 0; written < document.size();) {
            const qint64 more = m_file.write(document.constData() + written, document.size() - written);
            require(more > 0);
            written += more;
        }
        require(m_file.commit());
    }
    [[nodiscard]] bool takesManyDocuments() const override { return false; }

private:
    void require(bool done) const
    {
        if (!done)
            throwError(FileAccessError, "The File '"_L1 % m_file.fileName() % "' could not be written: "_L1 %
                                            m_file.errorString());
    }

    QSaveFile m_file;
};

PageDevice::PageDevice(const Printer &printer)
    : m_output(std::make_unique<JobOutput>(printer))
    , m_title(printer.title)
{
}

PageDevice::PageDevice(const PdfFile &file)
    : m_output(std::make_unique<FileOutput>(file.path))
    , m_title(file.title)
{
}

PageDevice::~PageDevice() = default;

void PageDevice::newPage()
{
    if (!m_painter.isActive())
        begin();
    else
        m_writer->newPage();
}

void PageDevice::begin()
{
    m_output->prepare();
    m_document.close();
    m_document.setData({});
    m_document.open(QIODevice::WriteOnly);
    m_writer = std::make_unique<QPdfWriter>(&m_document);
    m_writer->setTitle(m_title);
    m_writer->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF()));
    if (!m_painter.begin(m_writer.get()))
        throwError(PrinterError, "The page for '"_L1 % m_title % "' could not be begun."_L1);
}

void PageDevice::endDocument()
{
    if (m_output->takesManyDocuments())
        closeOutput();
}

void PageDevice::finish()
{
    closeOutput();
}

void PageDevice::closeOutput()
{
    if (!m_painter.isActive())
        return;
    m_painter.end();
    m_writer.reset();
    m_output->take(m_document.data());
}

double PageDevice::dots(double millimetres) const
{
    return millimetres * m_writer->resolution() / millimetresInInch;
}

double PageDevice::millimetres(double dots) const
{
    return dots * millimetresInInch / m_writer->resolution();
}

void PageDevice::setFont(double points, QFont::Weight weight)
{
    QFont font(QStringList{u"Arial"_s, u"Liberation Sans"_s});
    font.setPointSizeF(points);
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting); // the widths are those of the design
    m_painter.setFont(font);
}

void PageDevice::setLineWidth(int dots)
{
    m_painter.setPen(
        QPen(Qt::black, dots * m_writer->resolution() / lineDotsInInch, Qt::SolidLine, Qt::FlatCap));
}

QFontMetricsF PageDevice::metrics() const
{
    return QFontMetricsF(m_painter.font(), m_writer.get());
}

double PageDevice::textHeight() const
{
    return millimetres(metrics().height());
}

double PageDevice::textWidth(const QString &text) const
{
    return millimetres(metrics().horizontalAdvance(text));
}

void PageDevice::text(double x, double y, const QString &text)
{
    QString shown = text;
    shown.replace("\r\n"_L1, " "_L1);
    for (QChar &character : shown)
        if (character < u' ' || character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
            character = u' ';
    m_painter.drawText(QPointF(dots(x), dots(y) + metrics().ascent()), shown);
}

void PageDevice::line(double x1, double y1, double x2, double y2)
{
    m_painter.drawLine(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2)));
}

} // namespace printing

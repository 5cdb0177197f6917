#include "pdfpages.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60'000) && process.exitCode() == 0)
        << qPrintable(program) << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

double millimetres(const QXmlStreamAttributes &attributes, QLatin1StringView name)
{
    return attributes.value(name).toDouble() * 25.4 / 72;
}

} // namespace

QStringList PdfPage::lines() const
{
    QList<PdfWord> sorted = words;
    const auto lineOf = [](const PdfWord &word) { return std::lround(word.top * 2); };
    std::ranges::stable_sort(sorted, [&](const PdfWord &a, const PdfWord &b) {
        return std::pair(lineOf(a), a.left) < std::pair(lineOf(b), b.left);
    });
    QStringList lines;
    for (qsizetype i = 0; i < sorted.size(); ++i) {
        if (i > 0 && lineOf(sorted[i]) == lineOf(sorted[i - 1]))
            lines.last() += u' ' + sorted[i].text;
        else
            lines.append(sorted[i].text);
    }
    return lines;
}

PdfWord PdfPage::word(const QString &text) const
{
    const auto found = std::ranges::find(words, text, &PdfWord::text);
    if (found == words.end())
        ADD_FAILURE() << "No word " << qPrintable(text);
    return found == words.end() ? PdfWord() : *found;
}

QList<PdfPage> readPdf(const QString &path)
{
    QList<PdfPage> pages;
    QXmlStreamReader xml(outputOf(u"pdftotext"_s, {u"-bbox-layout"_s, path, u"-"_s}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == "page"_L1) {
            pages.append({millimetres(attributes, "width"_L1), millimetres(attributes, "height"_L1), {}});
        } else if (xml.name() == "word"_L1) {
            PdfWord word{{},
                         millimetres(attributes, "xMin"_L1),
                         millimetres(attributes, "yMin"_L1),
                         millimetres(attributes, "xMax"_L1)};
            word.text = xml.readElementText();
            pages.last().words.append(word);
        }
    }
    return pages;
}

QImage paintedPage(const QString &path, int page)
{
    const QTemporaryDir folder;
    const QString number = QString::number(page);
    outputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dotsInMillimetre * 25.4), u"-gray"_s, u"-singlefile"_s,
                             u"-f"_s, number, path, folder.filePath(u"page"_s)});
    return QImage(folder.filePath(u"page.pgm"_s));
}

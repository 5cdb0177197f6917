#pragma once

#include <QImage>
#include <QList>
#include <QString>

/// A word on a page: its top left and right edge in millimetres from the top left of the paper.
struct PdfWord
{
    QString text;
    double left = 0;
    double top = 0;
    double right = 0;
};

struct PdfPage
{
    double width = 0;
    double height = 0;
    QList<PdfWord> words;

    /// The words of each line with a space between, from top to bottom.
    [[nodiscard]] QStringList lines() const;
    /// The first word of the text; fails the test without one.
    [[nodiscard]] PdfWord word(const QString &text) const;
};

/// What a PDF reader finds in the file.
[[nodiscard]] QList<PdfPage> readPdf(const QString &path);

inline constexpr int dotsInMillimetre = 20;
/// A page as it is painted, in grey.
[[nodiscard]] QImage paintedPage(const QString &path, int page);

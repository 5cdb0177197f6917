#pragma once

#include <QSaveFile>
#include <QString>

#include <optional>

class CommonDialog;
class QWidget;

/// Asks for a file to write to, and whether one that exists may be replaced. Nothing when the user wants
/// neither.
[[nodiscard]] std::optional<QString> askSaveFile(QWidget *owner, CommonDialog &dialog);

/// A file that is written beside its place and takes it when all is written: whatever fails before, a full
/// disk or a folder in which nothing can be added, leaves the old file as it was. Every method raises
/// FileAccessError with the path and the reason.
class SaveFile final
{
public:
    explicit SaveFile(const QString &path);

    void write(QByteArrayView bytes);
    /// To be called once, at the end; without it nothing is changed.
    void commit();

private:
    [[noreturn]] void refuse() const;

    QSaveFile m_file;
};

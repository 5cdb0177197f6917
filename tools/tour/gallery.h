#pragma once

#include <QDir>
#include <QString>

class QWidget;

/// The folder that the pictures go to. What cannot be written raises an Error that names
/// the file.
class Gallery final
{
public:
    /// Makes the folder when it is not there. The suffix stands behind each picture's name.
    Gallery(const QString &folder, const QString &suffix);

    /// Saves what the window shows now. An older picture of the name is replaced when the
    /// new one is complete.
    void add(QWidget &window, const QString &name);

    [[nodiscard]] int count() const { return m_count; }

private:
    QDir m_folder;
    QString m_suffix;
    int m_count = 0;
};

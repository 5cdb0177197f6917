#pragma once

#include "toolkit/commondialog.h"

#include <QMainWindow>

class Banner;
class QAction;
class QLabel;
class QMenu;
class QPlainTextEdit;

/// The information window: a text that can be read, changed and saved.
class frmResult final : public QMainWindow
{
    Q_OBJECT

public:
    explicit frmResult(QWidget *owner = nullptr);

    Banner *picLogoContainer;
    QLabel *picContext;
    QLabel *LblInfo;
    QPlainTextEdit *txtResult;
    CommonDialog Dialog;
    QMenu *mnuFile;
    QAction *mnuFileSave;
    QAction *mnuExit;

    void setResult(const QString &text, const QString &title);

    /// Asks for a file and writes the text into it as UTF-8. Raises FileAccessError for a file that
    /// cannot be written, which keeps its old contents.
    void Save();

private:
    [[nodiscard]] QString resultText() const;

    QString m_text;
};

#pragma once

#include "messages/showresult.h"
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
    QAction *mnuFileSaveAttachment;
    QAction *mnuExit;

    /// The menu offers to save the attachment where there is one.
    void setResult(const QString &text, const QString &title, const ResultAttachment &attachment = {});

    /// Asks for a file and writes the text into it as UTF-8. Raises FileAccessError for a file that
    /// cannot be written, which keeps its old contents.
    void Save();
    /// The same for the attachment.
    void SaveAttachment();

private:
    [[nodiscard]] QString resultText() const;
    void save(const QByteArray &bytes);

    QString m_text;
    QByteArray m_attachment;
};

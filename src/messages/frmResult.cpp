#include "messages/frmResult.h"

#include "messages/guard.h"
#include "messages/savefile.h"
#include "session/identity.h"
#include "toolkit/banner.h"
#include "toolkit/imagelist.h"

#include <QFontDatabase>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int widthInCharacters = 120;
constexpr int heightInLines = 26;
constexpr int tabCharacters = 8;
constexpr int textPicture = 12;

} // namespace

frmResult::frmResult(QWidget *owner)
    : QMainWindow(owner, Qt::Window)
    , picLogoContainer(new Banner)
    , picContext(picLogoContainer->picContext)
    , LblInfo(picLogoContainer->LblInfo)
    , txtResult(new QPlainTextEdit)
    , mnuFile(menuBar()->addMenu(u"&File"_s))
    , mnuFileSave(mnuFile->addAction(u"&Save"_s))
    , mnuFileSaveAttachment(mnuFile->addAction(QString()))
    , mnuExit(mnuFile->addAction(u"&Exit"_s))
{
    setObjectName("frmResult"_L1);
    setWindowTitle(u"Information Window"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    picLogoContainer->setPicture(imageLists().ImageListList, textPicture);
    txtResult->setObjectName("txtResult"_L1);
    txtResult->setAccessibleName(u"Result"_s);
    txtResult->setLineWrapMode(QPlainTextEdit::NoWrap);
    // Texts align their columns by tabs of eight characters.
    txtResult->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtResult->setTabStopDistance(tabCharacters * txtResult->fontMetrics().horizontalAdvance(u' '));
    mnuFile->setObjectName("mnuFile"_L1);
    mnuFileSave->setObjectName("mnuFileSave"_L1);
    mnuFileSaveAttachment->setObjectName("mnuFileSaveAttachment"_L1);
    mnuFileSaveAttachment->setVisible(false);
    mnuExit->setObjectName("mnuExit"_L1);
    mnuFileSave->setShortcut(QKeySequence::Save);
    mnuExit->setShortcut(Qt::Key_Escape);

    auto *inside = new QWidget;
    auto *layout = new QVBoxLayout(inside);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(picLogoContainer);
    layout->addWidget(txtResult);
    setCentralWidget(inside);
    resize(widthInCharacters * fontMetrics().averageCharWidth(), heightInLines * fontMetrics().lineSpacing());
    txtResult->setFocus();

    connect(mnuFileSave, &QAction::triggered, this, [this] { guarded(this, [this] { Save(); }); });
    connect(mnuFileSaveAttachment, &QAction::triggered, this,
            [this] { guarded(this, [this] { SaveAttachment(); }); });
    connect(mnuExit, &QAction::triggered, this, &QWidget::close);
}

void frmResult::setResult(const QString &text, const QString &title, const ResultAttachment &attachment)
{
    setWindowTitle(mainCaption());
    LblInfo->setText(title);
    m_text = text;
    txtResult->setPlainText(text);
    m_attachment = attachment.text;
    mnuFileSaveAttachment->setText(attachment.menuText);
    mnuFileSaveAttachment->setVisible(!m_attachment.isEmpty());
}

void frmResult::Save()
{
    save(resultText().toUtf8());
}

void frmResult::SaveAttachment()
{
    save(m_attachment);
}

void frmResult::save(const QByteArray &bytes)
{
    Dialog.filter = u"*.txt | *.txt"_s;
    const std::optional<QString> name = askSaveFile(this, Dialog);
    if (!name)
        return;
    SaveFile file(*name);
    file.write(bytes);
    file.commit();
}

// The edit keeps lines, not line breaks: a text that nobody changed is saved as it came.
QString frmResult::resultText() const
{
    if (!txtResult->document()->isModified())
        return m_text;
    QString text = txtResult->document()->toRawText();
    return text.replace(QChar::ParagraphSeparator, "\r\n"_L1).replace(QChar::LineSeparator, "\r\n"_L1);
}

#include "views/frmNewEdit.h"

#include "messages/status.h"
#include "session/connectionstring.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "views/savedialog.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmNewEdit::frmNewEdit(QWidget *owner, const Action &action, const Texts &texts, RowTarget source, Save save)
    : QDialog(owner)
    , m_action(action)
    , m_source(std::move(source))
    , m_save(std::move(save))
{
    Form form(*this, "frmNewEdit"_L1);
    picLogoContainer = form.banner(action.bannerPicture);
    picContext = picLogoContainer->picContext;
    LblInfo = picLogoContainer->LblInfo;
    frameContainer = form.frame("frameContainer"_L1, action.caption);
    const Form::Line name = form.line("lblName"_L1, action.nameLabel, "txtName"_L1);
    lblName = name.label;
    txtName = name.field;
    cmdBrowse = form.buttonBeside("cmdBrowse"_L1, "Browse"_L1);
    const Form::Line server = form.line("lblServer"_L1, "Server"_L1, "txtServer"_L1);
    lblServer = server.label;
    txtServer = server.field;
    cmdSelectServer = form.buttonBeside("cmdSelectServer"_L1, "Select Server"_L1);
    const Form::Line description = form.line("Label1"_L1, "Description"_L1, "txtDescription"_L1);
    Label1 = description.label;
    txtDescription = description.field;
    cmdOK = form.defaultButton("cmdOK"_L1, "&Save"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);

    setWindowTitle(action.caption);
    LblInfo->setText(action.caption % u' ' % texts.name);
    txtName->setText(texts.name);
    txtServer->setText(texts.server);
    txtDescription->setText(texts.description);
    cmdBrowse->setVisible(action.isFolder);
    offerFolders(*cmdBrowse, *txtName);
    offerServers(*cmdSelectServer, *txtServer);
    lblServer->setEnabled(action.hasServer);
    txtServer->setEnabled(action.hasServer);
    cmdSelectServer->setEnabled(action.hasServer);

    connect(cmdOK, &QPushButton::clicked, this, &frmNewEdit::OK);
    txtName->setFocus();
}

frmNewEdit::Texts frmNewEdit::texts() const
{
    return {txtName->text(), txtServer->text(), txtDescription->text()};
}

void frmNewEdit::OK()
{
    if (m_action.isFolder && !txtName->text().endsWith(u'\\'))
        txtName->setText(txtName->text() % u'\\');
    saveAndAccept(
        *this,
        [this] {
            m_save(getConnectionString(), texts());
            UpdateSource();
        },
        txtName);
}

void frmNewEdit::UpdateSource() const
{
    const Texts saved = texts();
    if (m_action.hasServer)
        m_source.put({saved.name, saved.server, saved.description});
    else
        m_source.put({saved.name, saved.description});
}

void modRender::showNewEdit(QWidget *owner, const frmNewEdit::Action &action, const frmNewEdit::Texts &texts,
                            RowTarget source, frmNewEdit::Save save)
{
    frmNewEdit dialog(owner, action, texts, std::move(source), std::move(save));
    showStatusReady();
    dialog.exec();
}

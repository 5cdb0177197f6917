#pragma once

#include "views/rowtarget.h"

#include <QDialog>

#include <functional>

class Banner;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Adds or edits an object that is a name, a description and, for groups, a server: global group, local
/// group, folder, room. Saving writes to the store and puts the texts into the row of the list that the
/// command came from; a failure is shown and leaves the dialog open with what was typed.
class frmNewEdit final : public QDialog
{
    Q_OBJECT

public:
    /// What the dialog is about: a row of the family's table of handlers.
    struct Action
    {
        QLatin1StringView caption;
        int bannerPicture;
        bool hasServer = false;
        bool isFolder = false; ///< a path that can be browsed for and ends in a backslash
        QLatin1StringView nameLabel = QLatin1StringView("Name");
    };
    struct Texts
    {
        QString name = {};
        QString server = {};
        QString description = {};
    };
    /// Writes the texts to the store; raises what it refuses.
    using Save = std::function<void(const QString &connectionString, const Texts &texts)>;

    frmNewEdit(QWidget *owner, const Action &action, const Texts &texts, RowTarget source, Save save);

    Banner *picLogoContainer;
    QLabel *picContext;
    QLabel *LblInfo;
    QGroupBox *frameContainer;
    QLabel *lblName;
    QLineEdit *txtName;
    QPushButton *cmdBrowse;
    QLabel *lblServer;
    QLineEdit *txtServer;
    QPushButton *cmdSelectServer;
    QLabel *Label1;
    QLineEdit *txtDescription;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

    void OK();
    /// Puts what was saved into the row of the source.
    void UpdateSource() const;

private:
    [[nodiscard]] Texts texts() const;

    Action m_action;
    RowTarget m_source;
    Save m_save;
};

namespace modRender {

/// Opens the dialog, modal to the owner.
void showNewEdit(QWidget *owner, const frmNewEdit::Action &action, const frmNewEdit::Texts &texts,
                 RowTarget source, frmNewEdit::Save save);

} // namespace modRender

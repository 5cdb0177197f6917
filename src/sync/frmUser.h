#pragma once

#include "store/userrecord.h"
#include "views/recordform.h"
#include "views/rowtarget.h"

#include <QDialog>

class Banner;
class QLabel;
class QPushButton;
class QTabWidget;

/// The form of one user: every column of a user on four tabs. Adds or edits a user of the store, or shows a
/// live account without a way of saving.
class frmUser final : public QDialog
{
    Q_OBJECT

public:
    enum class Action : quint8 { NewUser, EditUser, NTUserExtendedInfo };

    frmUser(QWidget *owner, Action action, RowTarget source = {});

    Banner *picLogoContainer;
    QLabel *LblInfo;
    QTabWidget *TabStrip;
    QPushButton *cmdSave;
    QPushButton *cmdClose;

    /// Shows the current record of a recordset with the columns of a user.
    void load(jet::Recordset &user);
    [[nodiscard]] const RecordForm &form() const { return m_form; }
    [[nodiscard]] RecordForm &form() { return m_form; }

    void Save();
    void UpdateSource() const;

private:
    void AddDriveLetters();
    void dress();
    [[nodiscard]] bool inputCheck();
    [[nodiscard]] UserRecord read() const;
    void requireFreeId(int id) const;
    void offerExport();

    Action m_action;
    RowTarget m_source;
    RecordForm m_form;
    int m_userId = 0; ///< of the user that is edited
};

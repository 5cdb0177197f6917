#pragma once

#include "views/rowtarget.h"

#include <QDialog>

#include <functional>

class Banner;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;

/// Adds or edits a permission that every folder gets.
class frmFolderDefaultPermissions final : public QDialog
{
    Q_OBJECT

public:
    /// Writes to the store; raises what it refuses.
    using Store = std::function<void(const QString &connectionString, const QString &account,
                                     const QString &permission)>;

    frmFolderDefaultPermissions(QWidget *owner, RowTarget source, Store store);

    Banner *picLogoContainer;
    QLabel *LblInfo;
    QGroupBox *FrameDefaultFolderPermission;
    QComboBox *cboUserName;
    QComboBox *cboPermission;
    QPushButton *cmdInfo;
    QPushButton *cmdSave;
    QPushButton *cmdClose;

    /// Shows what is to be edited.
    void load(const QString &account, const QString &permission);
    void Save();
    void UpdateSource() const;

private:
    void LoadComboBoxData();

    RowTarget m_source;
    Store m_store;
};

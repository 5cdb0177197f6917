#pragma once

#include "views/rowtarget.h"

#include <QDialog>

#include <functional>

class Banner;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// Adds or edits a saved query, and tries its statement.
class frmCustomQuery final : public QDialog
{
    Q_OBJECT

public:
    enum class Action : quint8 { NewQRY, EditQRY };
    struct Texts
    {
        QString name;
        QString description;
        QString statement;
    };
    /// Writes to the store; raises what it refuses.
    using Store = std::function<void(const QString &connectionString, const Texts &texts)>;

    frmCustomQuery(QWidget *owner, Action action, RowTarget source, Store store);

    Banner *picLogoContainer;
    QLabel *LblInfo;
    QGroupBox *frameQuery;
    QLineEdit *txtName;
    QLineEdit *txtDescription;
    QPlainTextEdit *txtQRY;
    QPushButton *cmdQueryBuilder;
    QPushButton *cmdRules;
    QPushButton *cmdExecute;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

    /// Shows what is to be edited.
    void load(const Texts &texts);
    void Save();
    /// Runs the statement; a mistake in it is selected.
    void Execute();
    void UpdateSource() const;

private:
    [[nodiscard]] Texts texts() const;
    void mark(const QString &statement, const QString &errorText);

    RowTarget m_source;
    Store m_store;
};

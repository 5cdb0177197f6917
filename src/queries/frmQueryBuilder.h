#pragma once

#include <QDialog>

class QComboBox;
class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

/// Puts a statement together from keywords, tables and fields, each of which goes in at the cursor with
/// Enter.
class frmQueryBuilder final : public QDialog
{
    Q_OBJECT

public:
    frmQueryBuilder(QWidget *owner, const QString &connectionString);

    QLabel *LblInfo;
    QGroupBox *FrameQuery;
    QLabel *lblSQlStatements;
    QComboBox *cboSQLStatements;
    QComboBox *cboTables;
    QComboBox *cboFields;
    QPlainTextEdit *txtQRY;
    QPushButton *cmdReset;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

    /// The cursor goes to the end.
    void setText(const QString &statement);
    [[nodiscard]] QString text() const;

    /// Empties the window and fills the lists anew.
    void Initialize();
    void GetTables();
    void GetFields(const QString &table);
    /// Moves the focus to the list that the keyword needs next.
    void FocusDecision();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void insert(const QString &value);
    void undo();
    void connectControls();

    QString m_connectionString;
    QString m_lastText;
};

#pragma once

#include "assets/hwrecord.h"
#include "views/recordform.h"
#include "views/rowtarget.h"

#include <QDialog>

#include <functional>

class Banner;
class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;

/// Adds or edits a hardware item.
class frmHW final : public QDialog
{
    Q_OBJECT

public:
    enum class Action : quint8 { NewHW, EditHW };
    /// Writes to the store; raises what it refuses.
    using Store = std::function<void(const QString &connectionString, const HWRecord &item)>;

    frmHW(QWidget *owner, Action action, RowTarget source, Store store);

    Banner *picLogoContainer;
    QLabel *LblInfo;
    QTabWidget *TabStrip;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

    /// Shows the item that is to be edited: the current record.
    void load(jet::Recordset &item);
    [[nodiscard]] RecordForm &form() { return m_form; }

    void Save();
    void UpdateSource() const;

private:
    void fillLists();
    [[nodiscard]] QComboBox &combo(QStringView column) const;
    [[nodiscard]] int hardwareType() const;
    [[nodiscard]] bool inputCheck();
    [[nodiscard]] HWRecord read() const;

    RowTarget m_source;
    Store m_store;
    RecordForm m_form;
    int m_loadedTypeId = 0; ///< of the item that is edited; 0 while it has none
    QString m_loadedType;
};

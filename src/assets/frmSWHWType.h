#pragma once

#include "views/rowtarget.h"

#include <QDialog>

#include <array>
#include <functional>

class Banner;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Adds or edits a row of one of the two catalogues, hardware types and software.
class frmSWHWType final : public QDialog
{
    Q_OBJECT

public:
    /// What the window is about.
    struct Action
    {
        QLatin1StringView caption;
        int bannerPicture;
        QLatin1StringView typeLabel;
        QLatin1StringView nameLabel;
        QLatin1StringView versionLabel;
    };
    /// Type, manufacturer, model or name, type number or version, description.
    using Texts = std::array<QString, 5>;
    /// Writes to the store; raises what it refuses.
    using Store = std::function<void(const QString &connectionString, const Texts &texts)>;

    frmSWHWType(QWidget *owner, const Action &action, RowTarget source, Store store);

    Banner *picLogoContainer;
    QLabel *LblInfo;
    QGroupBox *frameSWHWType;
    QLabel *lblType;
    QComboBox *cboType;
    QLabel *lblManufacturer;
    QComboBox *cboManufacturer;
    QLabel *lblModelName;
    QLineEdit *txtModelName;
    QLabel *lblTypeVersionNumber;
    QLineEdit *txtTypeVersionNumber;
    QLabel *lblDescription;
    QLineEdit *txtDescription;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

    /// Shows what is to be edited.
    void load(const Texts &texts);
    void Save();
    void UpdateSource() const;

private:
    [[nodiscard]] Texts texts() const;

    RowTarget m_source;
    Store m_store;
};

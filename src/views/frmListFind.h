#pragma once

#include <QDialog>
#include <QPointer>

class Banner;
class ListView;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Looks for a text in one column of a list and goes from hit to hit. There is one such window.
class frmListFind final : public QDialog
{
    Q_OBJECT

public:
    explicit frmListFind(QWidget *owner);

    /// Opens the window, modal to the list's. The search begins at the row.
    static void Initialize(ListView &list, int startRow, int column);

    Banner *picLogoContainer;
    QLabel *picContext;
    QLabel *LblInfo;
    QGroupBox *frameFind;
    QLabel *lblStringToFind;
    QLineEdit *txtStringToFind;
    QPushButton *cmdFind;
    QPushButton *cmdCancel;

    /// Selects the next row that holds the text, in any case; says so when there is none, and begins at the
    /// top the next time.
    void Find();

private:
    void look(ListView &list, int startRow, int column);

    QPointer<ListView> m_list;
    int m_startRow = 0;
    int m_column = 0;
};

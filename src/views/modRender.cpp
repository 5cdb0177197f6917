#include "views/modRender.h"

#include "base/error.h"
#include "base/text.h"
#include "platform/jet/recordset.h"
#include "toolkit/banner.h"
#include "toolkit/imagelist.h"
#include "toolkit/listview.h"
#include "toolkit/statusbar.h"

#include <QComboBox>
#include <QLabel>

#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

enum class Subject { Value, Field };

struct PictureTest
{
    Subject subject;
    std::string_view text;
    int picture;
};

// Made in this order on every cell; the last that matches wins.
constexpr PictureTest pictureTests[] = {
    {Subject::Value, "N/A", 10},         {Subject::Field, "UserName", 14},
    {Subject::Field, "Server", 11},      {Subject::Field, "ServerName", 11},
    {Subject::Field, "Description", 12}, {Subject::Value, "CH", 13},
    {Subject::Value, "R", 13},           {Subject::Value, "Full Control", 13},
    {Subject::Value, "L", 13},           {Subject::Field, "FolderName", 4},
    {Subject::Field, "GlobalGroup", 1},  {Subject::Field, "LocalGroup", 2},
};

/// The tests with what is known before the first row: which of them a field name passes.
class CellPicture final
{
public:
    explicit CellPicture(QStringView field)
    {
        for (const PictureTest &test : pictureTests)
            if (test.subject == Subject::Value || field == QLatin1StringView(test.text))
                m_tests.push_back(&test);
    }

    [[nodiscard]] int operator()(std::string_view value) const
    {
        for (auto test = m_tests.rbegin(); test != m_tests.rend(); ++test)
            if ((*test)->subject == Subject::Field || value == (*test)->text)
                return (*test)->picture;
        return 0;
    }

private:
    std::vector<const PictureTest *> m_tests;
};

bool hasHeadings(const ListView &list, const QStringList &headings)
{
    if (headings.isEmpty() || list.columnCount() != headings.size())
        return false;
    for (int column = 0; column < list.columnCount(); ++column)
        if (list.heading(column) != headings[column])
            return false;
    return true;
}

void readTexts(jet::Recordset &recordset, int field, ListRows &rows)
{
    if (const TextColumn *texts = recordset.texts(field)) {
        rows.setTexts(field, *texts);
        return;
    }
    int row = 0;
    for (recordset.moveFirst(); !recordset.eof(); recordset.moveNext(), ++row)
        attempt([&] { rows.setText(row, field, recordset.value(field).toText()); });
}

void setPictures(ListRows &rows, int field, const CellPicture &picture)
{
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QUtf8StringView text = rows.view(row, field);
        rows.setPicture(row, field, picture({text.data(), std::size_t(text.size())}));
    }
}

ListRows readRows(jet::Recordset &recordset, const QStringList &fields)
{
    ListRows rows(int(fields.size()));
    if (recordset.recordCount() == 0)
        return rows;
    rows.addRows(recordset.recordCount());
    for (int field = 0; field < fields.size(); ++field) {
        readTexts(recordset, field, rows);
        if (field > 0)
            setPictures(rows, field, CellPicture(fields[field]));
    }
    return rows;
}

struct FamilyLook
{
    QLatin1StringView text;
    int dataPicture;    // of ImageListDataContext, panel 2
    int toolbarPicture; // of ImageListToolbar, panel 1
};

constexpr FamilyLook databaseLook{"You are Viewing Database Objects"_L1, 2, 15};
constexpr FamilyLook liveLook{"You are Viewing Live System Objects"_L1, 1, 16};
constexpr QColor liveTitleColor(255, 0, 0);

} // namespace

void modRender::renderList(ListView &list, jet::Recordset &recordset)
{
    QStringList headings;
    const jet::Fields fields = recordset.fields();
    for (int field = 0; field < fields.count(); ++field)
        headings += fields.item(field).name();
    const bool sameColumns = hasHeadings(list, headings);
    if (!sameColumns)
        list.setColumns(headings);
    ListRows rows(int(headings.size()));
    if (recordset.state() != 0 && !headings.isEmpty())
        rows = readRows(recordset, headings);
    if (sameColumns) {
        list.replaceRows(std::move(rows));
        // The result of a query shows its first column; a list of objects does not.
        if (!list.isColumnHidden(0))
            list.spreadColumns();
        return;
    }
    list.setRows(std::move(rows));
    list.spreadColumns();
}

void modRender::renderContext(const Context &context, std::optional<Mode> mode)
{
    const ModeLook &look = lookOf(mode);
    context.banner.setPicture(look.bannerPicture);
    context.window.setWindowIcon(imageLists().ImageListContext.iconOnPlate(look.bannerPicture));
    if (look.family == ModeFamily::None)
        return;

    const bool live = look.family == ModeFamily::Live;
    const FamilyLook &family = live ? liveLook : databaseLook;
    ImageLists &images = imageLists();
    context.bar.setPanelPicture(2, images.ImageListDataContext, family.dataPicture);
    context.bar.setPanelPicture(1, images.ImageListToolbar, family.toolbarPicture);
    context.bar.setPanelText(1, family.text);
    if (live) {
        QLabel &title = *context.banner.LblInfo;
        QPalette palette = title.palette();
        palette.setColor(title.foregroundRole(), liveTitleColor);
        title.setPalette(palette);
        if (context.banner.picNT)
            context.banner.picNT->show();
    }
}

void modRender::showRecordCount(StatusBar &bar, int count)
{
    bar.setPanelText(2, QString::number(count) % " Record(s)"_L1);
}

QString modRender::objectName(Mode mode, const ListView &list, int row)
{
    if (list.columnCount() < 2)
        return {};
    QString name;
    QLatin1StringView rest = lookOf(mode).objectName;
    for (qsizetype open = rest.indexOf(u'{'); open >= 0; open = rest.indexOf(u'{')) {
        const qsizetype close = rest.indexOf(u'}', open);
        const int column = list.columnOf(rest.sliced(open + 1, close - open - 1));
        // A drill-down has columns of its own, the first of which is the name.
        if (column < 0)
            return list.subItem(row, 1);
        name += rest.first(open) % list.subItem(row, column);
        rest = rest.sliced(close + 1);
    }
    return name.isEmpty() ? list.subItem(row, 1) : name;
}

bool modRender::hasIds(Mode mode, const ListView &list)
{
    if (lookOf(mode).family != ModeFamily::Database || list.columnCount() == 0)
        return true;
    return list.heading(0).compare(mode == Mode::Users ? "UserID"_L1 : "ID"_L1, Qt::CaseInsensitive) == 0;
}

bool modRender::hasEditedColumns(Mode mode, const ListView &list)
{
    const QString needed(lookOf(mode).editedColumns);
    int column = 0;
    for (const QStringView heading : QStringView(needed).split(u'|', Qt::SkipEmptyParts)) {
        if (++column >= list.columnCount() || list.heading(column).compare(heading, Qt::CaseInsensitive) != 0)
            return false;
    }
    return true;
}

void modRender::showSelectedCount(const ListView &list, StatusBar &bar, int panel)
{
    bar.setPanelText(panel, fillMarker(u"$ Object(s) Selected"_s, QString::number(list.selectedCount())));
}

void modRender::fillComboFromRecordset(jet::Recordset &recordset, QComboBox &combo)
{
    if (recordset.recordCount() == 0)
        return;
    for (recordset.moveFirst(); !recordset.eof(); recordset.moveNext())
        combo.addItem(recordset.value(1).toText(), recordset.value(0).toInteger());
}

#include "exchange/modExport.h"

#include "base/error.h"
#include "base/windows1252.h"
#include "messages/savefile.h"
#include "messages/status.h"
#include "toolkit/commondialog.h"
#include "toolkit/listmodel.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"
#include "views/frmDisplay.h"
#include "views/listpane.h"

#include <QLabel>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype chunkSize = 256 * 1024;

/// The text of the file on its way into it.
class Output final
{
public:
    explicit Output(const QString &path) : m_file(path) { m_bytes.reserve(chunkSize + chunkSize / 4); }

    void add(char character) { m_bytes += character; }
    void add(QUtf8StringView text)
    {
        const char *const end = text.data() + text.size();
        for (const char *at = text.data(); at != end;) {
            const char *plain = at;
            while (plain != end && uchar(*plain) < 0x80)
                ++plain;
            m_bytes.append(at, plain - at);
            at = plain;
            if (at != end)
                at = addCharacter(at, end);
        }
    }
    void endLine()
    {
        m_bytes += "\r\n";
        if (m_bytes.size() >= chunkSize)
            flush();
    }
    void commit()
    {
        flush();
        m_file.commit();
    }

    [[nodiscard]] int replaced() const { return m_replaced; }

private:
    /// A character of several bytes; gives the place behind it.
    const char *addCharacter(const char *at, const char *end)
    {
        const auto first = uchar(*at++);
        char32_t character = first < 0xe0 ? first & 0x1f : first < 0xf0 ? first & 0x0f : first & 0x07;
        for (; at != end && (uchar(*at) & 0xc0) == 0x80; ++at)
            character = character << 6 | (uchar(*at) & 0x3f);
        const std::optional<uchar> byte = windows1252::byte(character);
        m_replaced += byte ? 0 : 1;
        m_bytes += char(byte.value_or('?'));
        return at;
    }

    void flush()
    {
        m_file.write(m_bytes);
        m_bytes.resize(0);
    }

    SaveFile m_file;
    QByteArray m_bytes;
    int m_replaced = 0;
};

constexpr auto saved = "The Data has been successfully exported"_L1;

/// Nothing when it failed, which is reported then.
std::optional<int> writeList(const CommandContext &context, const QString &path,
                             const std::optional<QString> &title)
{
    std::optional<int> replaced;
    CurrentError error;
    {
        const Hourglass hourglass;
        const auto ready = qScopeGuard([] { attempt(showStatusReady); });
        showStatusWriting();
        try {
            replaced = modExport::exportList(path, *context.pane, title);
        } catch (const Error &failure) {
            error.set(failure);
        }
    }
    if (!replaced)
        messageBox(context.owner, "Error(s) occoured while exporting Data\r\n"_L1 + error.description,
                   box::StopIcon);
    return replaced;
}

} // namespace

int modExport::exportList(const QString &path, const ListView &list, const std::optional<QString> &title)
{
    Output output(path);
    if (title) {
        output.add(QUtf8StringView(title->toUtf8()));
        output.endLine();
    }
    for (int column = 0; column < list.columnCount(); ++column) {
        if (column > 0)
            output.add(';');
        output.add(QUtf8StringView(list.heading(column).toUtf8()));
    }
    output.endLine();
    const ListModel &rows = list.rows();
    for (int row = 0; row < list.rowCount(); ++row) {
        for (int column = 0; column < list.columnCount(); ++column) {
            if (column > 0)
                output.add(';');
            output.add(rows.view(row, column));
        }
        output.endLine();
    }
    output.commit();
    return output.replaced();
}

void modExport::exportToFile(const CommandContext &context)
{
    CommonDialog dialog;
    dialog.filter = u"Text Files | *.txt"_s;
    const std::optional<QString> path = askSaveFile(context.owner, dialog);
    if (!path)
        return;
    std::optional<QString> title;
    if (messageBox(context.owner, u"Would you like to export also the Title of this View?"_s,
                   box::YesNo | box::QuestionIcon) == box::ResultYes)
        title = context.view->LblInfo->text();
    const std::optional<int> replaced = writeList(context, *path, title);
    if (!replaced)
        return;
    messageBox(context.owner, saved, box::InformationIcon);
    if (*replaced > 0)
        messageBox(context.owner,
                   u"%1 Character(s) do not exist in the encoding of the File and were replaced by '?'"_s.arg(
                       *replaced),
                   box::WarningIcon);
}

std::span<const OpRow> modExport::handlers()
{
    static const std::vector<OpRow> rows = [] {
        std::vector<OpRow> all;
        for (int mode = 0; mode < modeCount; ++mode)
            all.push_back({Mode(mode), Op::ExportToFile, exportToFile});
        return all;
    }();
    return rows;
}

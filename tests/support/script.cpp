#include "support/script.h"

#include <gtest/gtest.h>

namespace {

int leastChange(int flags)
{
    switch (box::buttons(flags)) {
    case box::Ok:
        return box::ResultOk;
    case box::YesNo:
        return box::ResultNo;
    default:
        return box::ResultCancel;
    }
}

std::string told(const QString &text, int flags)
{
    return '"' + text.toStdString() + "\" (" + std::to_string(flags) + ")";
}

std::string told(CommonDialog::Kind kind, const QString &filter)
{
    return (kind == CommonDialog::Kind::Open ? "open \"" : "save \"") + filter.toStdString() + '"';
}

} // namespace

Script::Script()
{
    setMessageBoxHandler(
        [this](QWidget *owner, const QString &text, int flags) { return answerBox(owner, text, flags); });
    setCommonDialogHandler(
        [this](const CommonDialog &dialog, CommonDialog::Kind kind) { return answerFile(dialog, kind); });
}

Script::~Script()
{
    verify();
    setMessageBoxHandler({});
    setCommonDialogHandler({});
}

void Script::expectBox(const QString &text, int flags, int answer)
{
    m_boxes.push_back({{text, flags}, answer});
}

void Script::expectFile(CommonDialog::Kind kind, const QString &filter, const QString &path)
{
    m_files.push_back({kind, filter, path});
}

void Script::verify()
{
    for (const BoxAnswer &expected : m_boxes)
        ADD_FAILURE() << "The expected box never came: " << told(expected.box.text, expected.box.flags);
    for (const FileAnswer &expected : m_files)
        ADD_FAILURE() << "The expected file dialog never came: " << told(expected.kind, expected.filter);
    m_boxes.clear();
    m_files.clear();
}

int Script::answerBox(QWidget *owner, const QString &text, int flags)
{
    m_lastOwner = owner;
    m_asked.push_back({text, flags});
    if (m_boxes.empty()) {
        ADD_FAILURE() << "Unexpected box: " << told(text, flags);
        return leastChange(flags);
    }
    const BoxAnswer expected = m_boxes.front();
    m_boxes.pop_front();
    if (expected.box == m_asked.back())
        return expected.answer;
    ADD_FAILURE() << "Expected box: " << told(expected.box.text, expected.box.flags)
                  << "\n    Actual box: " << told(text, flags);
    return leastChange(flags);
}

QString Script::answerFile(const CommonDialog &dialog, CommonDialog::Kind kind)
{
    if (m_files.empty()) {
        ADD_FAILURE() << "Unexpected file dialog: " << told(kind, dialog.filter);
        return {};
    }
    const FileAnswer expected = m_files.front();
    m_files.pop_front();
    if (expected.kind == kind && expected.filter == dialog.filter)
        return expected.path;
    ADD_FAILURE() << "Expected file dialog: " << told(expected.kind, expected.filter)
                  << "\n    Actual file dialog: " << told(kind, dialog.filter);
    return {};
}

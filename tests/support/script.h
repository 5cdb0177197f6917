#pragma once

#include "toolkit/commondialog.h"
#include "toolkit/messagebox.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <deque>
#include <vector>

/// The scripted user behind message boxes and file dialogs, while it lives. Fails the
/// test on a box or dialog that is not the next expected one, answering it in the way
/// that changes least, and on an expected one that never came.
class Script final
{
public:
    struct Box
    {
        QString text;
        int flags = 0;
        friend bool operator==(const Box &, const Box &) = default;
    };

    Script();
    ~Script();
    Script(const Script &) = delete;
    Script &operator=(const Script &) = delete;

    void expectBox(const QString &text, int flags, int answer);
    /// An empty path cancels.
    void expectFile(CommonDialog::Kind kind, const QString &filter, const QString &path);
    /// Reports what was expected and has not come, and forgets it.
    void verify();

    /// Every box that was asked so far.
    [[nodiscard]] const std::vector<Box> &asked() const { return m_asked; }
    /// The owner of the last one.
    [[nodiscard]] QWidget *lastOwner() const { return m_lastOwner; }

private:
    struct BoxAnswer
    {
        Box box;
        int answer;
    };
    struct FileAnswer
    {
        CommonDialog::Kind kind;
        QString filter;
        QString path;
    };

    int answerBox(QWidget *owner, const QString &text, int flags);
    QString answerFile(const CommonDialog &dialog, CommonDialog::Kind kind);

    std::deque<BoxAnswer> m_boxes;
    std::deque<FileAnswer> m_files;
    std::vector<Box> m_asked;
    QPointer<QWidget> m_lastOwner;
};

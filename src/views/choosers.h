#pragma once

#include <QString>

#include <functional>

class QWidget;

/// The choices that only the live system can offer. It sets them at start; while one is empty, the buttons
/// that would open it are grey.
struct Choosers
{
    /// A server's name; empty when none was chosen.
    std::function<QString(QWidget *owner)> server;
    /// A folder as a Windows path; empty when none was chosen.
    std::function<QString(QWidget *owner)> folder;
};
[[nodiscard]] Choosers &choosers();

#pragma once

#include <QString>

#include <functional>

class QDialog;
class QLineEdit;
class QPushButton;
class QWidget;

/// The end of every dialog of a record: runs the saving and accepts the dialog. What it raises is shown by
/// its description; the dialog stays open then with what was typed. A rule of the store, such as that against
/// duplicates, gives the focus to the field at fault.
void saveAndAccept(QDialog &dialog, const std::function<void()> &save, QWidget *fieldAtFault = nullptr);

/// Refuses an input: shows the text as a warning and gives the field the focus. Always false.
bool refuse(QWidget *owner, const QString &text, QWidget *field);

/// "Browse": a folder of the live system goes into the field; grey while there is no live system.
void offerFolders(QPushButton &button, QLineEdit &field);
/// "Select Server": a server chosen in the server dialog goes into the field.
void offerServers(QPushButton &button, QLineEdit &field);

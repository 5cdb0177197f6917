#pragma once

#include <QString>

class QWidget;
class frmDisplay;

/// The views of users and of what belongs to a user, and the import of users from a file.
/// A list goes into the given view, or into a new one for nothing.
namespace modUsers {

/// Called once at start.
void registerFamily();

void listAllUsers(frmDisplay *view);
/// The users whose names contain the texts; an empty text is contained in every name.
void findUsers(frmDisplay *view, const QString &userName, const QString &lastName);

/// The name goes behind the title of the view.
void listUserFolders(frmDisplay *view, int user, const QString &name);
void listUserSW(frmDisplay *view, int user, const QString &name);
void listUserRooms(frmDisplay *view, int user, const QString &name);
void listUserGlobalGroups(frmDisplay *view, int user, const QString &name);
void listUserLocalGroups(frmDisplay *view, int user, const QString &name);
void listUserHW(frmDisplay *view, int user, const QString &name);
void listUsersByHW(frmDisplay *view, int hardwareType, const QString &name);

/// Asks whether known users are to be updated, reads the file, writes its users to the
/// store and reports. Nothing is read when the question is cancelled, nothing is written
/// when the reading is. Raises nothing.
void importUsersFromFile(QWidget *owner, const QString &path);

/// Makes it the import of users of the import dialog. Called once at start.
void registerImport();

} // namespace modUsers

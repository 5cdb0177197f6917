#pragma once

#include <QString>

/// One row of Tbl_Users. The members are in the order of the table's columns. Those that go
/// into yes/no columns are yes (any number) or no (0). The days of PasswordAge and the three
/// logon dates are texts, the dates as oledate::toText() gives them; a MaxStorage of -1 is no limit.
struct UserRecord
{
    int UserID = 0;
    QString UserName;
    QString Password;
    QString PasswordAge;
    int Privilege = 0;
    QString HomeDir;
    QString Comment;
    int FLAGS = 0;
    int NoChangePwd = 0;
    int NoExpirePwd = 0;
    int AccDisabled = 0;
    int AccLocked = 0;
    QString ScriptPath;
    int AuthFlags = 0;
    QString FullName;
    QString UserComment;
    QString Parms;
    QString Workstations;
    QString LastLogon;
    QString LastLogoff;
    QString AcctExpires;
    int MaxStorage = 0;
    int UnitsPerWeek = 0;
    QString LogonHours;
    int BadPwCount = 0;
    int NumLogons = 0;
    QString LogonServer;
    int CountryCode = 0;
    int CodePage = 0;
    int PrimaryGroupID = 0;
    QString Profile;
    QString HomeDirDrive;
    int PasswordExpired = 0;
    QString ServerName;
    QString SID;
    QString Salutation;
    QString Title;
    QString LastName;
    QString FirstName;
    QString JobTitle;
    QString EmailAddress;
    QString Department;
    QString CostCenter;
    QString PhoneNumber;
    QString DirectDial;
    QString MobileNumber;
    QString Division;
};

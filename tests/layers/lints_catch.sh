#!/usr/bin/env bash
# Each rule of the lints, broken on purpose in a tree of its own: the lint must fail and say so.
set -euo pipefail
scripts=$(cd "$(dirname "$0")/../../scripts" && pwd)
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failures=0

fresh() {
    rm -rf "${tree:?}"/*
    mkdir -p "$tree"/src/{base,platform/jet,session,toolkit,messages,live,views,store,sync,exchange,assets,shell,sample} "$tree/docs"
    echo '#include "base/error.h"' >"$tree/src/platform/jet/lexer.cpp"
    echo '#include "platform/network/netapi.h"' >>"$tree/src/platform/jet/lexer.cpp"
    printf '#include <%s>\n' QStringView QPageLayout >"$tree/src/base/text.h"
    echo '#include "sync/modUsers.h"' >"$tree/src/exchange/modImport.cpp"
    echo '#include "exchange/modImport.h"' >"$tree/src/assets/modRooms.cpp"
    local class
    for class in clsUsers clsFolders clsHW clsHWType; do
        echo "class $class final" >"$tree/src/store/$class.h"
    done
}

# caught LINT FILE LINE EXPECTED: the line in the file makes the lint fail with the expected words.
caught() {
    fresh
    mkdir -p "$(dirname "$tree/$2")"
    printf '%s\n' "$3" >>"$tree/$2"
    local said
    if said=$("$scripts/$1" "$tree"); then
        echo "FAILED: $1 lets pass in $2: $3"
        failures=$((failures + 1))
    elif [[ "$said" != *"$2"*"$4"* ]]; then
        echo "FAILED: $1 on $2 says: $said"
        failures=$((failures + 1))
    fi
}

# passes LINT FILE LINE: what is allowed must stay allowed.
passes() {
    fresh
    printf '%s\n' "$3" >>"$tree/$2"
    local said
    if ! said=$("$scripts/$1" "$tree"); then
        echo "FAILED: $1 refuses $2: $said"
        failures=$((failures + 1))
    fi
}

caught check-layers src/base/text.cpp '#include "platform/jet/errors.h"' 'base may not include platform'
caught check-layers src/platform/jet/parser.h '#include "store/clsUsers.h"' 'platform may not include records'
caught check-layers src/store/clsUsers.cpp '#include "session/identity.h"' 'records may not include session'
caught check-layers src/sync/clsAccounts.cpp '#include "toolkit/listview.h"' 'records may not include toolkit'
caught check-layers src/toolkit/listview.cpp '#include "messages/guard.h"' 'toolkit may not include messages'
caught check-layers src/messages/guard.cpp '#include "views/frmDisplay.h"' 'messages may not include views'
caught check-layers src/views/frmDisplay.cpp '#include "store/modUsers.h"' 'views may not include families'
caught check-layers src/store/modUsers.cpp '#include "shell/frmMain.h"' 'families may not include shell'
caught check-layers src/live/modNT.cpp '#include "messages/batch.h"' 'live may not include messages'
caught check-layers src/store/storefile.cpp '#include "sample/sampledata.h"' 'records may not include sample'
caught check-layers src/sample/users.cpp '#include "session/modServers.h"' 'sample may not include session'
caught check-layers src/store/userstatements.h '#include "store/modUsers.h"' 'records may not include families'
caught check-layers src/sync/modUsersImport.cpp '#include "exchange/modImportSteps.h"' 'circle'
caught check-layers src/sync/frmUser.cpp '#include "assets/roomscommands.h"' 'circle'
caught check-layers src/platform/network/files.h '#include "platform/jet/database.h"' 'circle'
caught check-layers src/store/clsUsers.cpp '#include "store/clsFolders.h"' 'may not see another'
caught check-layers src/store/clsHWType.h '#include "store/clsHW.h"' 'may not see another'
caught check-layers src/store/clsUsers.cpp '#include <QtWidgets/QWidget>' 'no windows'
caught check-layers src/session/modServers.cpp '#include <QMessageBox>' 'no windows'
caught check-layers src/views/frmDisplay.cpp 'QMessageBox::question(this);' 'QMessageBox belongs to'
caught check-layers src/toolkit/banner.cpp 'QFileDialog::getOpenFileName();' 'QFileDialog belongs to'
caught check-layers src/messages/modProgress.cpp 'QCoreApplication::processEvents();' 'processEvents belongs to'
caught check-layers src/store/modUsers.cpp 'run("SELECT * FROM Tbl_Users"_L1);' 'SQL belongs'
caught check-layers src/views/frmDisplay.cpp 'run("UPDATE Tbl_Users SET UserID = 1"_L1);' 'SQL belongs'
caught check-layers src/shell/frmMain.cpp 'run("DELETE * FROM Tbl_Users"_L1);' 'SQL belongs'
caught check-docs docs/architecture.md "The engine is in \`src/platform/jet/absent.cpp\`." 'absent.cpp'
caught check-docs docs/architecture.md '![A window](pictures/absent.png)' 'absent.png'

passes check-layers src/store/clsUsers.cpp 'run("SELECT * FROM Tbl_Users"_L1);'
passes check-layers src/store/clsUsers.cpp '#include "store/clsUsers.h"'
passes check-layers src/store/clsUsersBatch.cpp '#include "store/clsUsers.h"'
passes check-layers src/store/clsUsers.cpp '#include "store/clsUsersPaths.h"'
passes check-layers src/sync/clsAccounts.cpp '#include "assets/assetstatements.h"'
passes check-layers src/assets/modRooms.cpp '#include "sync/modUsers.h"'
passes check-layers src/views/frmDisplay.cpp '#include "live/modNT.h"'
passes check-layers src/shell/frmMain.cpp '#include "views/frmDisplay.h"'
passes check-layers src/toolkit/messagebox.cpp 'QMessageBox box;'
passes check-layers src/shell/frmMain.cpp 'label("Select the Program Options you need"_L1);'
passes check-docs docs/architecture.md "The engine is in \`platform/jet/lexer.cpp\`."

if [ "$failures" -gt 0 ]; then
    echo "$failures failures"
    exit 1
fi

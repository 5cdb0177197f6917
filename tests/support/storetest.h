#pragma once

#include "base/value.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A folder of the test's own, with the settings inside.
class FolderTest : public testing::Test
{
protected:
    void SetUp() override;

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

/// A new store in that folder, which the settings name.
class StoreTest : public FolderTest
{
protected:
    void SetUp() override;

    [[nodiscard]] QString storePath() const;
    [[nodiscard]] QString connection() const;

    void execute(const QString &sql) const;
    /// The first field of every row as text.
    [[nodiscard]] QStringList column(const QString &sql) const;
    /// The first field of the first row, Null without one.
    [[nodiscard]] Value scalar(const QString &sql) const;
};

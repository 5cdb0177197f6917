#include "base/textcolumn.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>

using namespace Qt::StringLiterals;

namespace {

using Model = std::vector<std::optional<QString>>;

void expectSame(const TextColumn &column, const Model &model)
{
    for (std::size_t row = 0; row < model.size(); ++row) {
        ASSERT_EQ(column.isNull(row), !model[row]) << row;
        ASSERT_EQ(column.text(row), model[row].value_or(QString())) << row;
    }
    ASSERT_TRUE(column.isNull(model.size()));
}

} // namespace

TEST(TextColumn, KeepsTextsOfEveryLength)
{
    TextColumn column;
    const int lengths[] = {0, 1, 127, 128, 129, 16383, 16384, 70000};
    std::size_t row = 0;
    for (const int length : lengths)
        column.set(row++, QString(length, u'é'));
    row = 0;
    for (const int length : lengths)
        EXPECT_EQ(column.text(row++), QString(length, u'é'));
}

TEST(TextColumn, AnEmptyTextIsNotNull)
{
    TextColumn column;
    column.set(1, QStringView(u""));
    EXPECT_TRUE(column.isNull(0));
    EXPECT_FALSE(column.isNull(1));
    EXPECT_EQ(column.text(1), QString());
}

TEST(TextColumn, DoesWhatAListOfTextsDoes)
{
    std::mt19937 random(7);
    TextColumn column;
    Model model(40);
    for (int step = 0; step < 5000; ++step) {
        const std::size_t row = random() % model.size();
        switch (random() % 8) {
        case 0:
            column.setNull(row);
            model[row].reset();
            break;
        case 1:
            column.removeRow(row);
            model.erase(model.begin() + std::ptrdiff_t(row));
            model.resize(40);
            break;
        case 2:
            column.squeeze();
            break;
        default:
            model[row] = QString(int(random() % 300), QChar(char16_t(0x60 + random() % 0x400)));
            column.set(row, *model[row]);
        }
        if (step % 100 == 0)
            expectSame(column, model);
    }
    expectSame(column, model);
    column.clear();
    expectSame(column, Model(40));
}

TEST(TextColumn, CostsLittleMoreThanItsTexts)
{
    TextColumn column;
    std::size_t texts = 0;
    for (std::size_t row = 0; row < 100'000; ++row) {
        const QString text = "user"_L1 + QString::number(row);
        texts += std::size_t(text.size());
        column.set(row, text);
    }
    column.squeeze();
    EXPECT_LE(column.bytes(), texts + 100'000 * 5);
}

#include "platform/jet/format.h"

#include "base/value.h"
#include "platform/jet/decimal.h"
#include "platform/jet/picture.h"

#include <algorithm>
#include <cmath>

namespace jet {

namespace {

bool isDigitPlace(const PictureItem &item)
{
    return !item.literal && (item.text == "0" || item.text == "#");
}

/// One section of a picture, read.
class NumberSection final
{
public:
    explicit NumberSection(std::string_view section);
    /// The magnitude in the picture, and whether all of its digits are zero.
    [[nodiscard]] std::string format(double magnitude, bool &isZero) const;

private:
    using Items = std::vector<PictureItem>;

    void readExponent(const Items &items, std::size_t &at);
    [[nodiscard]] std::string wholePart(const std::string &digits) const;
    [[nodiscard]] std::string fractionPart(const Decimal &decimal) const;
    [[nodiscard]] std::string exponentPart(int exponent) const;

    Items m_whole;
    Items m_fraction;
    Items m_tail; ///< behind the exponent
    int m_wholePlaces = 0;
    int m_fractionPlaces = 0;
    bool m_hasPoint = false;
    bool m_thousands = false;
    int m_shift = 0; ///< powers of ten of % and of commas before the point
    char m_exponent = 0;
    bool m_exponentSign = false;
    int m_exponentPlaces = 0;
};

NumberSection::NumberSection(std::string_view section)
{
    const Items items = pictureItems(section);
    int commas = 0;
    const auto endCommas = [&] {
        m_shift -= 3 * commas;
        commas = 0;
    };
    for (std::size_t i = 0; i < items.size(); ++i) {
        const PictureItem &item = items[i];
        if (item.literal) {
            (m_exponent ? m_tail : m_hasPoint ? m_fraction : m_whole).push_back(item);
            continue;
        }
        if (isDigitPlace(item)) {
            m_thousands = m_thousands || commas > 0;
            commas = 0;
            ++(m_hasPoint ? m_fractionPlaces : m_wholePlaces);
        } else if (item.text == "," && !m_hasPoint) {
            commas += m_wholePlaces > 0 ? 1 : 0;
            continue;
        } else if (item.text == "." && !m_hasPoint) {
            endCommas();
            m_hasPoint = true;
            continue;
        } else if (item.text == "%") {
            m_shift += 2;
        } else if ((item.text == "E" || item.text == "e") && !m_exponent && i + 1 < items.size() &&
                   (items[i + 1].text == "+" || items[i + 1].text == "-")) {
            readExponent(items, i);
            continue;
        }
        (m_exponent ? m_tail : m_hasPoint ? m_fraction : m_whole).push_back(item);
    }
    endCommas();
}

void NumberSection::readExponent(const Items &items, std::size_t &at)
{
    m_exponent = items[at].text.front();
    m_exponentSign = items[++at].text == "+";
    while (at + 1 < items.size() && isDigitPlace(items[at + 1])) {
        ++m_exponentPlaces;
        ++at;
    }
}

std::string NumberSection::format(double magnitude, bool &isZero) const
{
    Decimal decimal(magnitude);
    decimal.shift(m_shift);
    int exponent = 0;
    if (m_exponent) {
        const int places = std::max(1, m_wholePlaces);
        if (!decimal.isZero()) {
            exponent = decimal.point() - places;
            decimal.shift(-exponent);
        }
        decimal.round(m_fractionPlaces, Decimal::Halves::AwayFromZero);
        if (decimal.point() > places) {
            decimal.shift(-1);
            ++exponent;
        }
    } else {
        decimal.round(m_fractionPlaces, Decimal::Halves::AwayFromZero);
    }
    isZero = decimal.isZero();
    const bool hasPlaces = m_wholePlaces + m_fractionPlaces > 0;
    std::string text = wholePart(hasPlaces ? decimal.wholeDigits() : std::string());
    if (m_hasPoint)
        text += '.';
    text += fractionPart(decimal);
    if (m_exponent)
        text += exponentPart(exponent);
    for (const PictureItem &item : m_tail)
        text += item.text;
    return text;
}

std::string NumberSection::wholePart(const std::string &digits) const
{
    std::string text;
    bool begun = false;
    const auto put = [&](int position) {
        text += position < int(digits.size()) ? digits[digits.size() - 1 - std::size_t(position)] : '0';
        if (m_thousands && position > 0 && position % 3 == 0)
            text += ',';
        begun = true;
    };
    int place = m_wholePlaces;
    for (const PictureItem &item : m_whole) {
        if (!isDigitPlace(item)) {
            text += item.text;
            continue;
        }
        --place;
        // The first place takes all digits that the others have no room for.
        if (place == m_wholePlaces - 1)
            for (int position = int(digits.size()) - 1; position > place; --position)
                put(position);
        if (begun || item.text == "0" || place < int(digits.size()))
            put(place);
    }
    return m_wholePlaces == 0 ? text + digits : text;
}

std::string NumberSection::fractionPart(const Decimal &decimal) const
{
    int shown = m_fractionPlaces;
    int place = m_fractionPlaces;
    for (auto item = m_fraction.rbegin(); item != m_fraction.rend(); ++item) {
        if (!isDigitPlace(*item))
            continue;
        if (item->text == "0" || decimal.fractionDigit(place) != '0')
            break;
        shown = --place;
    }
    std::string text;
    place = 0;
    for (const PictureItem &item : m_fraction) {
        if (!isDigitPlace(item))
            text += item.text;
        else if (++place <= shown)
            text += decimal.fractionDigit(place);
    }
    return text;
}

std::string NumberSection::exponentPart(int exponent) const
{
    std::string digits = std::to_string(std::abs(exponent));
    if (int(digits.size()) < m_exponentPlaces)
        digits.insert(0, std::size_t(m_exponentPlaces) - digits.size(), '0');
    std::string text(1, m_exponent);
    if (exponent < 0)
        text += '-';
    else if (m_exponentSign)
        text += '+';
    return text + digits;
}

} // namespace

std::string formatNumber(double number, std::string_view picture)
{
    picture = pictureOf(picture);
    const auto sections = pictureSections(picture);
    const std::size_t wanted = number < 0 ? 1 : number == 0 ? 2 : 0;
    const bool hasOwn = wanted > 0 && wanted < sections.size() && !sections[wanted].empty();
    const std::string_view section = hasOwn ? sections[wanted] : sections[0];
    if (section.empty() || picture == generalNumber)
        return numberText(number);
    bool isZero = false;
    const std::string text = NumberSection(section).format(std::abs(number), isZero);
    return number < 0 && !hasOwn && !isZero ? '-' + text : text;
}

} // namespace jet

#include "data/forhosts/cardnumbers.h"

#include <algorithm>
#include <QList>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Leading digits from..to, of the same length, on numbers of one of the lengths.
struct Brand
{
    QLatin1StringView name;
    QList<qsizetype> lengths;
    int from = 0;
    int to = 0;
};

// First match wins.
const QList<Brand> &uncheckedBrands()
{
    static const QList<Brand> brands{
        {"enRoute"_L1, {15}, 2014, 2014}, {"enRoute"_L1, {15}, 2149, 2149},  {"Switch"_L1, {18}, 67, 67},
        {"Solo"_L1, {16}, 67, 67},        {"Discover"_L1, {16}, 6011, 6011},
    };
    return brands;
}

// The prefixes and lengths that the card companies publish.
const QList<Brand> &checkedBrands()
{
    static const QList<qsizetype> dinersLengths{14, 15, 16, 17, 18, 19};
    static const QList<Brand> brands{
        {"MASTERCARD"_L1, {16}, 51, 55},
        {"MASTERCARD"_L1, {16}, 2221, 2720},
        {"VISA"_L1, {13, 16, 19}, 4, 4},
        {"AMEX"_L1, {15}, 34, 34},
        {"AMEX"_L1, {15}, 37, 37},
        {"Diners Club"_L1, dinersLengths, 300, 305},
        {"Diners Club"_L1, dinersLengths, 3095, 3095},
        {"Diners Club"_L1, dinersLengths, 36, 36},
        {"Diners Club"_L1, dinersLengths, 38, 39},
    };
    return brands;
}

QString brandOf(const QString &digits, const QList<Brand> &brands)
{
    for (const Brand &brand : brands) {
        const int prefix = digits.left(QString::number(brand.from).size()).toInt();
        if (brand.lengths.contains(digits.size()) && prefix >= brand.from && prefix <= brand.to)
            return brand.name;
    }
    return {};
}

bool checkDigitIsRight(const QString &digits)
{
    int sum = 0;
    bool doubled = false;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, doubled = !doubled) {
        const int value = digit->digitValue() * (doubled ? 2 : 1);
        sum += value / 10 + value % 10;
    }
    return sum % 10 == 0;
}

} // namespace

QString validateCC(const QString &number)
{
    QString digits = number;
    digits.remove(u' ');
    const bool allDigits =
        std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!allDigits || digits.size() < 13)
        return {};

    if (QString brand = brandOf(digits, uncheckedBrands()); !brand.isEmpty())
        return brand;
    return checkDigitIsRight(digits) ? brandOf(digits, checkedBrands()) : QString();
}

} // namespace Tallymere

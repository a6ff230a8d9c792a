#include "data/keptfilters.h"

#include "base/prompts.h"
#include "base/ruleerror.h"
#include "data/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr auto nameKey = "name"_L1;
constexpr auto wordsKey = "words"_L1;
constexpr auto choicesKey = "choices"_L1;

KeptFilter fromValue(const QJsonValue &value)
{
    return {.name = value[nameKey].toString(),
            .words = value[wordsKey].toString(),
            .choices = value[choicesKey].toObject()};
}

QJsonObject toValue(const KeptFilter &filter)
{
    return {{nameKey, filter.name}, {wordsKey, filter.words}, {choicesKey, filter.choices}};
}

// A name in other capitals is the same to whoever looks for it.
bool isNamed(const KeptFilter &filter, const QString &name)
{
    return filter.name.compare(name, Qt::CaseInsensitive) == 0;
}

void removeNamed(QList<KeptFilter> &filters, const QString &name)
{
    filters.removeIf([&name](const KeptFilter &filter) { return isNamed(filter, name); });
}

QString checkedName(const QString &typed)
{
    const QString name = typed.simplified();
    if (name.isEmpty())
        throw RuleError(DataTexts::tr("Please enter a name for the filter."), nameKey);
    return name;
}

} // namespace

KeptFilters::KeptFilters(const QString &list, TDataModuleTallymere &data, SettingsStore *settings)
    : m_section(list + Settings::keptFiltersSection)
    , m_data(data)
    , m_settings(settings)
{
}

QList<KeptFilter> KeptFilters::all() const
{
    QList<KeptFilter> filters;
    const QJsonArray kept = store().read().list(Settings::KeptFilters);
    for (const auto &value : kept)
        filters << fromValue(value);
    std::sort(filters.begin(), filters.end(), [](const KeptFilter &one, const KeptFilter &other) {
        return QString::localeAwareCompare(one.name, other.name) < 0;
    });
    return filters;
}

std::optional<KeptFilter> KeptFilters::find(const QString &name) const
{
    const QList<KeptFilter> filters = all();
    const auto found = std::find_if(filters.begin(), filters.end(),
                                    [&name](const KeptFilter &filter) { return isNamed(filter, name); });
    return found == filters.end() ? std::nullopt : std::optional(*found);
}

void KeptFilters::askToReplace(const QString &name, Prompts &prompts) const
{
    const std::optional<KeptFilter> other = find(name);
    if (other
        && !prompts.confirm(Question::Loss,
                            DataTexts::tr("There is a filter '%1' already. Replace it?").arg(other->name)))
        throw SilentAbort(nameKey);
}

void KeptFilters::keep(KeptFilter filter, Prompts &prompts) const
{
    filter.name = checkedName(filter.name);
    askToReplace(filter.name, prompts);
    QList<KeptFilter> filters = all();
    removeNamed(filters, filter.name);
    write(filters << filter);
}

void KeptFilters::rename(const QString &name, const QString &newName, Prompts &prompts) const
{
    const QString checked = checkedName(newName);
    std::optional<KeptFilter> filter = find(name);
    if (!filter || checked == name)
        return;
    if (!isNamed(*filter, checked))
        askToReplace(checked, prompts);
    filter->name = checked;
    QList<KeptFilter> filters = all();
    removeNamed(filters, name);
    removeNamed(filters, checked);
    write(filters << *filter);
}

void KeptFilters::remove(const QString &name) const
{
    QList<KeptFilter> filters = all();
    removeNamed(filters, name);
    write(filters);
}

void KeptFilters::write(const QList<KeptFilter> &filters) const
{
    QJsonArray values;
    for (const KeptFilter &filter : filters)
        values << toValue(filter);
    Choices kept;
    kept.setList(Settings::KeptFilters, values);
    if (!store().keep(kept))
        throw RuleError(DataTexts::tr("Your settings cannot be written. The kept filters stay as they were."));
}

} // namespace Tallymere

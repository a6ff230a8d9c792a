#include "transactions/entry/leftdocuments.h"

#include "base/formats.h"
#include "base/plural.h"
#include "base/prompts.h"
#include "transactions/documents/begundocument.h"
#include "transactions/entry/documententry.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString question(const BegunDocument &left)
{
    const QString lines = plural(left.lineCount(), TransactionsTexts::tr("%n line of it is stored."),
                                 TransactionsTexts::tr("%n lines of it are stored."));
    return TransactionsTexts::tr("%1 was begun and not saved (%2, %3). %4\n\nGo on with it, or take that out? "
                                 "Cancel leaves it as it is; you will be asked again.")
        .arg(left.title(), dateText(left.saved().date()), left.saved().toString(u"HH:mm"_s), lines);
}

} // namespace

bool takeUpLeft(DocumentEntry &entry, Prompts &prompts, const Engine::Answer<QList<qint64>> &askedBegun)
{
    Engine::Database &database = entry.header().database();
    QList<qint64> begun = askedBegun ? askedBegun() : BegunDocument::askBegun(database, entry.kind())();
    while (std::unique_ptr<BegunDocument> left = BegunDocument::left(database, entry.kind(), begun)) {
        begun.removeAll(left->key());
        switch (
            prompts.choose(question(*left), TransactionsTexts::tr("&Go On"), TransactionsTexts::tr("&Take Out"))) {
        case Answer::Yes:
            entry.takeUp(std::move(left));
            return true;
        case Answer::No:
            left->takeOut();
            break;
        case Answer::Cancel:
            break;
        }
    }
    return false;
}

} // namespace Tallymere

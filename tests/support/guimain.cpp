#include "tests/support/complaints.h"
#include "tests/support/spokenlanguage.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>

using namespace Qt::StringLiterals;

namespace {
constexpr int longInterval = 3'600'000; // milliseconds

// A model of ours that a view shows has to tell its changes in full. What it reads for that counts where journeys are counted, which
// says so by a property of the application.
class ModelWatch final : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isShown = event->type() == QEvent::Show && !qApp->property("countsJourneys").toBool();
        const auto *view = isShown ? qobject_cast<QAbstractItemView *>(watched) : nullptr;
        QAbstractItemModel *model = view ? view->model() : nullptr;
        if (model && QByteArray(model->metaObject()->className()).startsWith("Tallymere::")
            && !model->findChild<QAbstractItemModelTester *>() && model->rowCount() < few)
            new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Warning, model);
        return false;
    }

private:
    static constexpr int few = 1000; // it goes over all of them with each change
};
} // namespace

// The main() of tests with windows; under the offscreen platform they need no display.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(u"Fusion"_s); // whatever the desktop's is
    // A test that closes the last window goes on.
    QApplication::setQuitOnLastWindowClosed(false);
    // Keys that belong together stay together when the machine is busy.
    QApplication::setKeyboardInputInterval(longInterval);
    const SpokenInTests spoken;
    testing::InitGoogleTest(&argc, argv);
    failOnComplaints();
    ModelWatch watch;
    application.installEventFilter(&watch);
    return RUN_ALL_TESTS();
}

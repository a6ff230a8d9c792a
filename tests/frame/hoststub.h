#pragma once

#include "frame/frmtallymeresystem.h"
#include "tests/frame/testcompany.h"
#include "tests/support/screendriver.h"

// The host's window, as far as the inventory knows it.
class HostStub final : public QWidget, public Tallymere::IHostInterface
{
public:
    ~HostStub() override { m_ended = true; }

    int addRef() override { return ++references; }
    int release() override
    {
        EXPECT_FALSE(m_ended) << "it is destroyed already";
        return --references;
    }
    void getCurrentUser(QString &name) override { name = user; }

    QString user = QStringLiteral("maria");
    int references = 0;

private:
    bool m_ended = false;
};

// The inventory of a company of its own, opened by the menu of a host.
struct HostedTest : testing::Test
{
    explicit HostedTest(Tallymere::ScreenRegistry registry)
        : screens(std::move(registry))
    {
    }

    void link(QWidget *window)
    {
        QMenu *reference = &menu;
        form.init(window);
        form.setMenu(reference);
    }
    // Does something while the window is open, and closes it. False when it did not open.
    bool open(const std::function<void()> &meanwhile = [] {})
    {
        bool opened = false;
        QTimer::singleShot(0, &form, [&] {
            opened = form.isVisible();
            if (!opened)
                return;
            meanwhile();
            click(form, "BitBtnClose");
        });
        menu.actions().constFirst()->trigger();
        QCoreApplication::processEvents();
        return opened;
    }

    TestCompany company;
    const Tallymere::ScreenRegistry screens;
    HostStub host;
    QMenu menu;
    Tallymere::TFormTallymereSystem form{Tallymere::FrameServices{company.settings, company.prompts, screens}};
};

#pragma once

#include "plgint/plgint.h"
#include "tests/support/texts.h"

#include <QWidget>

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

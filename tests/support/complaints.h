#pragma once

#include <cstdio>
#include <gtest/gtest.h>
#include <QString>
#include <QtGlobal>

// What Qt complains of at these is a fault of the program: a painter that is not put back, a signal that is not there, a file
// without a name. Other complaints come with what a test does to it, and what windows without a display cannot do, thousands of
// times, is not said.
inline void failOnComplaints()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
        if (text.startsWith(QLatin1StringView("This plugin does not support")))
            return;
        std::fprintf(stderr, "%s\n", qPrintable(text));
        if (!testing::UnitTest::GetInstance()->current_test_info())
            return;
        for (const auto of :
             {"QPainter::restore", "QPainter::save", "QPainter::end", "QObject::", "QMetaObject::", "QLayout",
              "QBoxLayout", "QWidget::", "QFont::", "QFSFileEngine", "Empty filename", "FAIL! "}) {
            if (text.startsWith(QLatin1StringView(of)))
                ADD_FAILURE() << qPrintable(text);
        }
    });
}

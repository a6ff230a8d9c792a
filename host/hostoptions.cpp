#include "host/hostoptions.h"

#include "engine/store/platform.h"
#include "host/texts.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

HostOptions readOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(HostTexts::tr("Corvane client billing, with the inventory module."));
    const QCommandLineOption help(u"help"_s, HostTexts::tr("Shows this text."));
    const QCommandLineOption version(u"version"_s, HostTexts::tr("Shows the version."));
    const QCommandLineOption module(u"module"_s, HostTexts::tr("Loads the inventory module from this file."),
                                    u"PATH"_s);
    const QCommandLineOption user(u"user"_s, HostTexts::tr("Works as this user instead of the login name."),
                                  u"NAME"_s);
    const QCommandLineOption data(u"data"_s, HostTexts::tr("Uses the company database in this folder from now on."),
                                  u"FOLDER"_s);
    const QCommandLineOption open(u"open"_s, HostTexts::tr("Opens the inventory at once."));
    const QCommandLineOption look(
        u"look"_s,
        HostTexts::tr("Is light, dark or as the desktop is. The environment variable TALLYMERE_LOOK says the same "
                      "for whoever gives no option."),
        u"light|dark|desktop"_s, qEnvironmentVariable("TALLYMERE_LOOK", u"desktop"_s));
    parser.addOptions({help, version, module, user, data, open, look});

    HostOptions options;
    const auto stop = [&options](HostOptions::Outcome outcome, const QString &message) {
        options.outcome = outcome;
        options.message = message;
        return options;
    };
    if (!parser.parse(arguments))
        return stop(HostOptions::Outcome::Refuse, parser.errorText());
    if (parser.isSet(help))
        // The parser takes the program's name from an application object, which there is not yet.
        return stop(HostOptions::Outcome::Inform,
                    parser.helpText().trimmed().replace("<executable_name>"_L1, "tallymere-host"_L1));
    if (parser.isSet(version))
        return stop(HostOptions::Outcome::Inform, "tallymere-host "_L1 + QCoreApplication::applicationVersion());
    if (!parser.positionalArguments().isEmpty())
        return stop(HostOptions::Outcome::Refuse,
                    HostTexts::tr("Unknown argument: %1").arg(parser.positionalArguments().constFirst()));

    options.module = parser.value(module);
    options.user = parser.isSet(user) ? parser.value(user) : loginName();
    options.data = parser.value(data);
    options.open = parser.isSet(open);
    const std::optional<HostLook> wanted = lookNamed(parser.value(look));
    if (!wanted)
        return stop(HostOptions::Outcome::Refuse,
                    HostTexts::tr("There is no look %1. It is light, dark or desktop.").arg(parser.value(look)));
    options.look = *wanted;
    if (parser.isSet(data) && !QFileInfo(options.data).isDir())
        return stop(HostOptions::Outcome::Refuse, HostTexts::tr("There is no folder %1.").arg(options.data));
    return options;
}

QString loginName()
{
    for (const char *variable : {"USER", "LOGNAME", "USERNAME"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return name;
    }
    return Engine::systemUserName();
}

} // namespace Tallymere

#pragma once

#include "engine/store/driver.h"

#include <functional>
#include <memory>
#include <QList>

namespace Engine {

// What has been asked and is taken later, once, so that questions which do not need each other's answers travel together.
template <typename Type> using Answer = std::function<Type()>;

// A statement that is asked, for the answers that are made of it.
inline std::shared_ptr<Statement> asked(StatementPtr statement)
{
    statement->ask();
    return statement;
}

// What the "ask" of each line answers, all of them asked before the first is taken.
template <typename Line, typename Source> auto answersOf(const QList<Line> &lines, Source &source)
{
    QList<decltype(lines.first().ask(source))> asked;
    for (const Line &line : lines)
        asked.append(line.ask(source));
    QList<decltype(asked.first()())> answers;
    for (const auto &answer : std::as_const(asked))
        answers.append(answer());
    return answers;
}

} // namespace Engine

#pragma once

#include <Qt>

namespace Tallymere {

// What a cell says to the eye beside its text. Models answer with its number under the role.
enum class CellNote {
    None,
    Negative, // a figure below zero
    Lacking, // the same of one that is told as a warning: stock that is not there
    Done, // shown as a tick
    Open // wants attention; shown as the word of its column
};

constexpr int cellNoteRole = Qt::UserRole;
constexpr int cellQuietRole = Qt::UserRole + 1; // true for what is there only to be compared with
constexpr int cellMarkRole = Qt::UserRole + 2; // true for a cell whose tool tip tells more: its corner is marked

} // namespace Tallymere

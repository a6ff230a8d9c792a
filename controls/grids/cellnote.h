#pragma once

#include <Qt>

namespace Tallymere {

// What a cell says to the eye beside its text. Models answer with its number under the role.
enum class CellNote {
    None,
    Negative, // a figure below zero
    Done, // shown as a tick
    Open // wants attention; shown as the word of its column
};

constexpr int cellNoteRole = Qt::UserRole;
constexpr int cellQuietRole = Qt::UserRole + 1; // true for what is there only to be compared with

} // namespace Tallymere

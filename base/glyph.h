#pragma once

namespace Tallymere {

// The sign of a command, by what it does: descriptions of commands name one, and whatever shows the command draws it.
enum class Glyph {
    None,
    Receive,
    Use,
    Post,
    Count,
    Adjust,
    Report,
    Totals,
    History,
    Item,
    ItemCard,
    Vendor,
    Location,
    Organization,
    Records, // any others
    New,
    Edit,
    Delete,
    Reverse,
    Copy,
    Find,
    Filter,
    Refresh,
    Synchronize,
    Print,
    Save,
    Settings,
    Help,
    Close,
    First, // pages
    Previous,
    Next,
    Last,
    Calendar,
    MonthEnd,
    Information,
    Warning,
    Error
};

} // namespace Tallymere

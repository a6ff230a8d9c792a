#pragma once

namespace Tallymere {

// What a command of the main window does with the screen that it opens. A screen overrides what it has of this.
class CommandScreen
{
public:
    virtual ~CommandScreen() = default;

    virtual void refreshList() { } // reads the list anew
    virtual void resetFilter() { } // all records show, and the filter dialog is cleared
    virtual void showWaiting() { } // narrows the list to what waits for somebody
    virtual void showAgain() { } // a visible screen is asked for again
    virtual void mnuPostClick() { } // of screens that are registered as posting
};

} // namespace Tallymere

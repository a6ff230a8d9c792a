# The screens of the room.
tallymere_room(tallymere_transactions_screens SCREENS
    SOURCES
        documentfilterform.cpp documentfilterform.h
        documentfindform.cpp documentfindform.h documentfindform.ui
        documentform.cpp documentform.h
        documentlistform.cpp documentlistform.h
        documentpostform.cpp documentpostform.h documentpostform.ui
        documentscreensform.cpp documentscreensform.h
        invreceiptform.cpp invreceiptform.h invreceiptform.ui
        invreceiptsform.cpp invreceiptsform.h
        invtotalsfilterform.cpp invtotalsfilterform.h
        invtotalsform.cpp invtotalsform.h
    LINK tallymere_transactions tallymere_master_screens tallymere_controls Qt6::Widgets)

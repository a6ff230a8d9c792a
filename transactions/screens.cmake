# The screens of the room.
file(GLOB forms CONFIGURE_DEPENDS *.ui)
tallymere_room(tallymere_transactions_screens SCREENS
    SOURCES
        ${forms}
        documentfilterform.cpp documentfilterform.h
        documentfindform.cpp documentfindform.h
        documentform.cpp documentform.h
        documentlistform.cpp documentlistform.h
        documentpostform.cpp documentpostform.h
        documentscreensform.cpp documentscreensform.h
        invreceiptform.cpp invreceiptform.h
        invreceiptsform.cpp invreceiptsform.h
        invtotalsfilterform.cpp invtotalsfilterform.h
        invtotalsform.cpp invtotalsform.h
    LINK tallymere_transactions tallymere_master_screens tallymere_controls Qt6::Widgets)

# The screens of the room.
tallymere_room(tallymere_transactions_screens SCREENS
    SOURCES
        documentfilterform.cpp documentfilterform.h
        documentform.cpp documentform.h
        documentpostform.cpp documentpostform.h documentpostform.ui
        invreceiptform.cpp invreceiptform.h invreceiptform.ui
        invreceiptsfindform.cpp invreceiptsfindform.h invreceiptsfindform.ui
        invreceiptsform.cpp invreceiptsform.h
        invtotalsfilterform.cpp invtotalsfilterform.h
        invtotalsform.cpp invtotalsform.h
    LINK tallymere_transactions tallymere_master_screens tallymere_controls Qt6::Widgets)

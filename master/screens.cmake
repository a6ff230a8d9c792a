# The screens of the room.
tallymere_room(tallymere_master_screens SCREENS
    SOURCES
        dialerinvform.cpp dialerinvform.h dialerinvform.ui
        dialersetupinvform.cpp dialersetupinvform.h dialersetupinvform.ui
        itempairform.cpp itempairform.h
        itemsearchinvform.cpp itemsearchinvform.h itemsearchinvform.ui
        itemsfindform.cpp itemsfindform.h itemsfindform.ui
    LINK tallymere_master tallymere_controls Qt6::Widgets)

# The screens of the room.
file(GLOB forms CONFIGURE_DEPENDS *.ui)
tallymere_room(tallymere_master_screens SCREENS
    SOURCES
        ${forms}
        addressbuttonsform.cpp addressbuttonsform.h
        banksinvform.cpp banksinvform.h
        companyform.cpp companyform.h
        dialerinvform.cpp dialerinvform.h
        dialersetupinvform.cpp dialersetupinvform.h
        iteminvform.cpp iteminvform.h
        itemsinvform.cpp itemsinvform.h
        itemtypeinvform.cpp itemtypeinvform.h
        itemsearchinvform.cpp itemsearchinvform.h
        itemsfindform.cpp itemsfindform.h
        masterlistform.cpp masterlistform.h
        masterrecordform.cpp masterrecordform.h
        masterscreensform.cpp masterscreensform.h
        recordfindform.cpp recordfindform.h
        recordpairform.cpp recordpairform.h
        vcontactform.cpp vcontactform.h
        vendorform.cpp vendorform.h
        vendorsform.cpp vendorsform.h
        warehousesinvform.cpp warehousesinvform.h
    LINK tallymere_master tallymere_controls Qt6::Widgets)

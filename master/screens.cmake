# The screens of the room.
tallymere_room(tallymere_master_screens SCREENS
    SOURCES
        addressbuttonsform.cpp addressbuttonsform.h
        banksinvform.cpp banksinvform.h bankinvform.ui
        companyform.cpp companyform.h companyform.ui
        currencyinvform.ui
        dialerinvform.cpp dialerinvform.h dialerinvform.ui
        dialersetupinvform.cpp dialersetupinvform.h dialersetupinvform.ui
        iteminvform.cpp iteminvform.h iteminvform.ui
        itemsinvform.cpp itemsinvform.h
        itemtypeinvform.cpp itemtypeinvform.h itemtypeinvform.ui
        itemsearchinvform.cpp itemsearchinvform.h itemsearchinvform.ui
        itemsfindform.cpp itemsfindform.h
        masterlistform.cpp masterlistform.h
        masterrecordform.cpp masterrecordform.h
        masterscreensform.cpp masterscreensform.h
        recordfindform.cpp recordfindform.h recordfindform.ui
        recordopenerform.cpp recordopenerform.h
        recordpairform.cpp recordpairform.h
        searchedlistform.cpp searchedlistform.h
        taxinvform.ui
        vcontactform.cpp vcontactform.h vcontactform.ui
        vendorform.cpp vendorform.h vendorform.ui
        vendorsform.cpp vendorsform.h
        warehousesinvform.cpp warehousesinvform.h warehouseinvform.ui
    LINK tallymere_master tallymere_controls Qt6::Widgets)

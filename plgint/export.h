#pragma once

#include <QtGlobal>

#ifdef TALLYMERE_PLGINT_BUILD
#define PLGINT_EXPORT Q_DECL_EXPORT
#else
#define PLGINT_EXPORT Q_DECL_IMPORT
#endif

#pragma once

#include <QtGlobal>

#ifdef UIUTILSPAPER_BUILDING
#define UIUTILSPAPER_EXPORT Q_DECL_EXPORT
#else
#define UIUTILSPAPER_EXPORT Q_DECL_IMPORT
#endif

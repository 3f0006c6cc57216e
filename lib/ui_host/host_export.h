#pragma once

#include <QtGlobal>

#ifdef UIUTILSHOST_BUILDING
#define UIUTILSHOST_EXPORT Q_DECL_EXPORT
#else
#define UIUTILSHOST_EXPORT Q_DECL_IMPORT
#endif

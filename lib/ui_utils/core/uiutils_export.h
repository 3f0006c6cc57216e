#pragma once

#include <QtGlobal>

#ifdef UIUTILS_BUILDING
#define UIUTILS_EXPORT Q_DECL_EXPORT
#else
#define UIUTILS_EXPORT Q_DECL_IMPORT
#endif

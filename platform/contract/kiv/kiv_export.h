#pragma once

#include <QtGlobal>

#ifdef KIV_BUILDING
#define KIV_EXPORT Q_DECL_EXPORT
#else
#define KIV_EXPORT Q_DECL_IMPORT
#endif

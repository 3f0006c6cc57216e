#pragma once

#include <QtGlobal>

#ifdef KIVBUS_BUILDING
#define KIVBUS_EXPORT Q_DECL_EXPORT
#else
#define KIVBUS_EXPORT Q_DECL_IMPORT
#endif

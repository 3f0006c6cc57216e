#pragma once

#include <QtGlobal>

#ifdef KIVEMBEDDED_BUILDING
#define KIVEMBEDDED_EXPORT Q_DECL_EXPORT
#else
#define KIVEMBEDDED_EXPORT Q_DECL_IMPORT
#endif

#pragma once

#include <QtGlobal>

/// Marks what the host's libraries export. One macro serves all four: none of them re-exports what
/// another one defines.
#ifdef CANVAS_HOST_BUILD
#define CANVAS_HOST_EXPORT Q_DECL_EXPORT
#else
#define CANVAS_HOST_EXPORT Q_DECL_IMPORT
#endif

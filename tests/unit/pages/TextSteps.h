#pragma once

#include "Steps.h"

// What shows the text page, and its pages of formats.
inline const Steps text = {Click("m_pTextTB")};
inline const Steps barcode = text + Choose("m_pTextFormatCMB", "Barcode");
inline const Steps plotStamp = text + Choose("m_pTextFormatCMB", "Orbotech Plot Stamp");
inline const Steps cannedText = text + Choose("m_pTextFormatCMB", "Canned Text");

#pragma once

#include <QString>

/// The file names under which modules address each other. They keep their ".dll" on every platform.
namespace ModuleNames {

inline const QString toolStrip = QStringLiteral("Canvas_Tool_Strip.dll");  ///< this module
inline const QString viewer = QStringLiteral("Canvas_Viewer.dll");         ///< the canvas
inline const QString jobTree = QStringLiteral("Canvas_JobTree.dll");       ///< told of Add Feature
inline const QString ruleMenu = QStringLiteral("Canvas_RuleMenu.dll");     ///< see SelectFromEditor

}  // namespace ModuleNames

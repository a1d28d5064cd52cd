#pragma once

#include <QString>

/// The file names under which modules address each other. They keep their ".dll" on every platform.
///
/// Texts that are sent are not QStringLiterals: those vanish with the library when it is unloaded,
/// while a receiver may keep what it was sent.
namespace ModuleNames {

inline const QString toolStrip(QLatin1String("Canvas_Tool_Strip.dll"));  ///< this module
inline const QString viewer(QLatin1String("Canvas_Viewer.dll"));         ///< the canvas
inline const QString jobTree(QLatin1String("Canvas_JobTree.dll"));       ///< told of Add Feature
inline const QString ruleMenu(QLatin1String("Canvas_RuleMenu.dll"));     ///< see SelectFromEditor
/// The sender of FeatureHighLight: deliberately without ".dll": part of the interface.
inline const QString bareToolStrip(QLatin1String("Canvas_Tool_Strip"));

}  // namespace ModuleNames

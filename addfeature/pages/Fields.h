#pragma once

class PageHost;
class QLabel;
class QString;
class QWidget;

namespace ZENTRA {
namespace UIAPI {
class ZTLineEdit;
}  // namespace UIAPI
}  // namespace ZENTRA

/// The small widgets that all pages are made of.
namespace Fields {

/// What the host's line edit lets the user type, by the host's number for it.
enum class Pattern { Length = 1, Decimal = 3, Text = 6 };

/// A line edit of the host's, in the user's unit; a child of `page`.
ZENTRA::UIAPI::ZTLineEdit* create(PageHost& host, Pattern pattern, const QString& name,
                                  QWidget* page);

/// An empty label, a child of `page`; `field`, when given, is what it names.
QLabel* createLabel(const QString& name, QWidget* page, QWidget* field = nullptr);

/// Whether the host shows lengths in metric units.
bool shownMetric(const PageHost& host);

}  // namespace Fields

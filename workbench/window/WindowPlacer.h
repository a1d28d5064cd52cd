#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>

#include <optional>

class FreePlace;
class QWidget;

/// Opens the other windows beside the host's, where a click on the canvas does not hide them, or
/// over parts of it that are not in use; never over each other as long as there is room. What was
/// opened last is in front. A window that waits for an answer is left alone.
class WindowPlacer : public QObject {
public:
    struct Host {
        QWidget* window;
        QList<QPointer<QWidget>> kept;  ///< parts of it that are not covered
        QPointer<QWidget> board;        ///< the part that is covered last of all others
        bool remembers;                 ///< the places of windows that the user has moved
    };
    /// `host.window` becomes the parent.
    explicit WindowPlacer(const Host& host);

    /// Keeps in the settings where the open windows are that the user has moved.
    void rememberAll();
    /// All windows are where they would be at the first start.
    void forgetAll();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place {
        std::optional<QPoint> corner;  ///< where it stands
        bool isUsers = false;          ///< the user has chosen it
        QElapsedTimer sincePut;
    };

    bool isOurs(const QWidget* window) const;
    void open(QWidget* window);
    void settle(QWidget* window);
    void keepInFront(const QWidget* question) const;
    void takeGrowth(QWidget* window);
    void putWhereFree(QWidget* window);
    QSize shrunk(const QWidget* window, const FreePlace& place, const QPoint& wanted) const;
    QSize frame() const;
    QPoint frameCorner() const;
    QPoint cornerOf(const QWidget* window) const;
    void moveTo(QWidget* window, const QPoint& corner);
    FreePlace placeFor(const QWidget* window);
    void noteMove(const QWidget* window);
    void remember(const QWidget* window);

    Host m_host;
    QHash<const QObject*, Place> m_places;
    bool m_isAtWork = false;
};

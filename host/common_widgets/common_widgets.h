#pragma once

#include <HostExport.h>

#include <QWidget>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class Canvas_Tool_Strip;

/// A window in which the user gives values to the job's attributes. Closing hides it.
class CANVAS_HOST_EXPORT Widget_Attributes : public QWidget {
    Q_OBJECT
public:
    /// `owner` becomes the parent, but the window is a separate one.
    explicit Widget_Attributes(QWidget* owner);
    ~Widget_Attributes() override;

    /// Replaces `out` by the attributes that are set, name to value.
    void getAttributeData(std::map<std::string, std::string>& out);

Q_SIGNALS:
    void change_button_color();    ///< the table is no longer empty
    void remove_button_color();    ///< the table became empty
    void send_attribute_signal();  ///< the user asks for the attributes of a feature on the board
    /// The user applied the table: all pairs (name, value).
    void send_attribute_list(std::vector<std::pair<std::string, std::string>>);

public Q_SLOTS:
    /// Replaces the table by the pairs (name, value) of a feature that was picked on the board.
    void get_attributeinfo_list(std::vector<std::pair<std::string, std::string>>);

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// A window with the symbols of a job, to choose one by name. Closing hides it.
class CANVAS_HOST_EXPORT Widget_SymbolSelection : public QWidget {
    Q_OBJECT
public:
    /// `context` decides the user's unit; the window is separate from that of `parent`.
    Widget_SymbolSelection(std::string job, QWidget* context, QWidget* parent);
    ~Widget_SymbolSelection() override;

    /// 0: round and square symbols only; 1: all.
    void changeAvailableItemView(int all);
    /// Reads the job's symbols again.
    void read();
    /// Shows the symbols of another job.
    void setJob(std::string job);

Q_SIGNALS:
    void sendText(QString);  ///< the chosen name, sizes in the user's unit

public Q_SLOTS:
    /// Shows the names in the user's current unit.
    void change_unit();

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// A small list window from which one name is chosen. Closing hides it.
class CANVAS_HOST_EXPORT Widget_listpopup : public QWidget {
    Q_OBJECT
public:
    /// Type 17: the fonts of `job`.
    Widget_listpopup(int type, std::string job, QWidget* parent);
    /// Type 16: the special texts of `job` and `step`.
    Widget_listpopup(int type, std::string job, std::string step, QWidget* parent);
    ~Widget_listpopup() override;

Q_SIGNALS:
    void on_send_Font(QString);        ///< a font was chosen (type 17)
    void on_send_changeText(QString);  ///< a special text was chosen (type 16)

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// A window that shows the last measured distance. Closing hides it.
class CANVAS_HOST_EXPORT Grc_Tbe_measurepopup : public QWidget {
    Q_OBJECT
public:
    /// `strip` is the toolbar that opened it, not owned; the window is separate from that of
    /// `parent`.
    Grc_Tbe_measurepopup(Canvas_Tool_Strip* strip, QWidget* parent);
    ~Grc_Tbe_measurepopup() override;

public Q_SLOTS:
    void change_language();         ///< shows its texts in the current language
    void onMeasureButtonClicked();  ///< the Measure tool was started: measuring starts over

private:
    class Private;
    std::unique_ptr<Private> d;
};

#pragma once

#include <QList>
#include <QWidget>

#include <memory>

class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace Ui {
class m_pDimensions;
}

/// The Dimensions popup: the controls of a dimensioning tool, none of which acts yet.
///
/// The form sends nothing and keeps nothing. The caller owns it, or its parent does.
class Dimensious : public QWidget {
    Q_OBJECT

public:
    explicit Dimensious(QWidget* parent = nullptr);
    ~Dimensious() override;

    /// Shows every text in the current language; each combo box goes back to its first item.
    void retranslate();

public Q_SLOTS:
    void on_pushButton_clicked();  // no child has this name: deliberately never called
    void on_m_pSourcesRBGroup_clicked(QAbstractButton* button);
    void on_m_pCreateNewEleRBGroup_clicked(QAbstractButton* button);
    void on_m_pLinePBGroup_clicked(int id);
    void on_m_pRectPBGroup_buttonClicked(int);
    void on_m_pSlotPBGroup_buttonClicked(int);
    void on_m_pAddDstEleShapeCMB_ComboBox_Changed();

protected:
    void changeEvent(QEvent* event) override;

private:
    /// The controls that choose one element.
    struct Selector {
        QPushButton* select;
        QLineEdit* entry;
        QLabel* mode;
        QComboBox* modes;
    };

    void buildElementArea();
    void buildSourceElement();
    void buildDestElement();
    QGroupBox* createGroup(const char* name);
    Selector addSelector(QGridLayout* grid, const QString& number);
    void retranslateForm();
    void retranslateElementArea();
    void retranslateNames();

    std::unique_ptr<Ui::m_pDimensions> m_form;
    QWidget* m_pElementWidget = nullptr;
    QVBoxLayout* m_elementLayout = nullptr;
    QGroupBox* m_pSourceElementGB = nullptr;
    QGroupBox* m_pDestElementGB = nullptr;
    QButtonGroup* m_pSourcesRBGroup = nullptr;
    QButtonGroup* m_pCreateNewEleRBGroup = nullptr;
    QList<Selector> m_selectors;
    QLabel* m_pCreateNewEleLB = nullptr;
    std::unique_ptr<QHBoxLayout> m_createNewRow;  // in no other layout, and so without a parent
    QList<QWidget*> m_links;  // the dimension links: none until they can be made
};

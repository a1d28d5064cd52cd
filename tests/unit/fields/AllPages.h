#pragma once

#include "FakeDoor.h"
#include "FindChild.h"
#include "addfeature/pages/ArcPage.h"
#include "addfeature/pages/LinePage.h"
#include "addfeature/pages/PadPage.h"
#include "addfeature/pages/SurfacePage.h"
#include "addfeature/pages/TextPage.h"

/// All pages in one window, with their rules run by the signals that run them in the dialog.
struct AllPages {
    AllPages()
    {
        door.route(SLOT(on_Line_ComboBox_Changed()), [this] { line.chooseKind(); });
        door.route(SLOT(on_Textformart_ComboBox_Changed()), [this] { text.chooseFormat(); });
        door.route(SLOT(on_m_pBackgroundCB_CheckState_Changed(int)),
                   [this] { text.m_barcode->chooseBackground(); });
        door.route(SLOT(on_m_pCannedHoleSizeCMB_ComboBox_Changed()),
                   [this] { text.m_cannedText->chooseHoleMode(); });
    }

    template <class T = QWidget>
    T& find(const QString& name) const
    {
        return findNamed<T>(window, name);
    }

    /// The entry with its type: "5" and 5 are equal to QVariant.
    QString stored(const QString& key) { return described(door.record().map().value(key)); }
    static QString described(const QVariant& value)
    {
        return value.isValid() ? value.typeName() + (' ' + value.toString()) : "nothing";
    }
    /// The texts of all entries but that one.
    QMap<QString, QString> others(const QString& key)
    {
        QMap<QString, QString> texts;
        for (const QString& other : door.record().map().keys()) {
            texts[other] = door.record().text(other);
        }
        texts.remove(key);
        return texts;
    }

    FakeDoor door;
    QWidget window;
    LinePage line{door, &window};
    PadPage pad{door, &window};
    SurfacePage surface{door, &window};
    ArcPage arc{door, &window};
    TextPage text{door, &window};
};

#pragma once

#include <QtGlobal>

/// While one exists, what Qt says about the slots of the Dimensions form is not shown. Hosts rely
/// on their names, which ask Qt to connect them to signals that the form does not have.
class FormWarnings {
public:
    FormWarnings();
    ~FormWarnings();

private:
    Q_DISABLE_COPY(FormWarnings)
};

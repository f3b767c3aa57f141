// Version, libraries and licence of the program.
#pragma once

#include <QtWidgets>

class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* Owner = nullptr);

private:
    QWidget* BuildPicture();
    QWidget* BuildName();
    QWidget* BuildVersion();
    QWidget* BuildLicences();
    QWidget* BuildButtons();
};

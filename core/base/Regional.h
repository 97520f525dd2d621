#pragma once

#include <QChar>
#include <QLocale>

/// What the regional settings say of numbers: the decimal separator and the separator of thousands.
struct ConfiguracionRegional {
    QChar decimal = u',';
    QChar grupo = u'.';

    friend bool operator==(const ConfiguracionRegional&, const ConfiguracionRegional&) = default;
};

/// The settings of a system as they are. One without any (the C or POSIX locale) counts as Spanish.
ConfiguracionRegional RegionalDelSistema(const QLocale& sistema = QLocale::system());

/// The settings in force, those of the system unless `FijarRegional` changed them.
const ConfiguracionRegional& Regional();

/// Puts other settings in force; used by tests.
void FijarRegional(const ConfiguracionRegional& regional);

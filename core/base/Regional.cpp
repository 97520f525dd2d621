#include "core/base/Regional.h"

#include <optional>

namespace {

std::optional<ConfiguracionRegional>& EnVigor() {
    static std::optional<ConfiguracionRegional> regional;
    return regional;
}

}  // namespace

ConfiguracionRegional RegionalDelSistema(const QLocale& sistema) {
    if (sistema.language() == QLocale::C) {
        return {};
    }
    const QString decimal = sistema.decimalPoint();
    const QString grupo = sistema.groupSeparator();
    ConfiguracionRegional regional;
    regional.decimal = decimal.isEmpty() ? u',' : decimal.front();
    const QChar otroGrupo = regional.decimal == u',' ? u'.' : u',';
    regional.grupo = grupo.isEmpty() ? otroGrupo : grupo.front();
    return regional;
}

const ConfiguracionRegional& Regional() {
    auto& regional = EnVigor();
    if (!regional) {
        regional = RegionalDelSistema();
    }
    return *regional;
}

void FijarRegional(const ConfiguracionRegional& regional) { EnVigor() = regional; }

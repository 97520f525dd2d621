#include "core/base/EntradaNumerica.h"

#include <QRegularExpression>
#include <algorithm>

#include "core/base/Conversiones.h"
#include "core/base/Regional.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kMenosTipografico(0x2212);

QString SinGrupos(QStringView texto) { return texto.toString().remove(Regional().grupo); }

QString SinAdornos(const QString& texto) {
    QString numero = texto.trimmed();
    if (numero.startsWith(u'€')) {
        numero = numero.mid(1).trimmed();
    } else if (numero.endsWith(u'€')) {
        numero = numero.chopped(1).trimmed();
    }
    return numero.replace(kMenosTipografico, u'-');
}

}  // namespace

int EnterosDeMascara(QStringView mascara) {
    const QStringView enteros = mascara.left(mascara.indexOf(u'.'));
    return static_cast<int>(std::ranges::count_if(enteros, [](QChar c) { return c == u'#' || c == u'0'; }));
}

bool EsEntradaNumerica(QStringView texto, int enteros) {
    if (texto.startsWith(u'-')) {
        texto = texto.mid(1);
    }
    const qsizetype coma = texto.indexOf(Regional().decimal);
    const QString entera = SinGrupos(coma < 0 ? texto : texto.left(coma));
    const QStringView decimales = coma < 0 ? QStringView() : texto.mid(coma + 1);
    return std::ranges::all_of(entera, EsDigito) && entera.size() <= enteros &&
           std::ranges::all_of(decimales, EsDigito);
}

std::optional<double> LeerEntrada(QStringView texto) { return LeerNumero(SinGrupos(texto)); }

QString TeclaNumerica(QChar tecla) {
    if (tecla == u',' || tecla == Regional().decimal) {
        return Regional().decimal;
    }
    return EsDigito(tecla) || tecla == u'-' ? QString(tecla) : QString();
}

QString LimpiarNumero(const QString& texto) {
    const QString grupo = QRegularExpression::escape(Regional().grupo);
    const QString decimal = QRegularExpression::escape(Regional().decimal);
    // Sign, whole part in threes (the separators being all alike) or in one piece, decimals.
    const QRegularExpression forma(
        u"^([+-]?)([0-9]{1,3}(%1|[ \\x{A0}\\x{202F}])[0-9]{3}(?:\\3[0-9]{3})*|[0-9]*)(?:%2([0-9]*))?$"_s.arg(
            grupo, decimal));
    const auto partes = forma.match(SinAdornos(texto));
    if (!partes.hasMatch()) {
        return {};
    }
    const QString entera = partes.captured(2).remove(partes.captured(3));
    const QString decimales = partes.captured(4);
    if (entera.isEmpty() && decimales.isEmpty()) {
        return {};
    }
    const QString signo = partes.captured(1) == u'-' ? u"-"_s : QString();
    return signo + entera + (decimales.isEmpty() ? QString() : Regional().decimal + decimales);
}

#include "core/store/esquema/Alfabetico.h"

#include <sqlite3.h>

#include <QString>

namespace {

// Put behind N for Ñ and behind C for Ç: comes after every letter that may follow a plain N or C.
constexpr QChar kTrasTodas{u'\uFFFF'};

QString ClaveDeOrden(QStringView texto) {
    QString clave;
    for (const QChar c : texto) {
        const QChar mayuscula = c.toUpper();
        if (mayuscula == u'Ñ' || mayuscula == u'Ç') {
            clave += mayuscula == u'Ñ' ? u'N' : u'C';
            clave += kTrasTodas;
            continue;
        }
        for (const QChar parte : QString(mayuscula).normalized(QString::NormalizationForm_D)) {
            if (parte.category() != QChar::Mark_NonSpacing) {
                clave += parte;
            }
        }
    }
    return clave;
}

int Cotejar(void* /*datos*/, int n1, const void* t1, int n2, const void* t2) {
    return CompararAlfabetico(QString::fromUtf8(static_cast<const char*>(t1), n1),
                              QString::fromUtf8(static_cast<const char*>(t2), n2));
}

}  // namespace

int CompararAlfabetico(QStringView a, QStringView b) {
    const int orden = ClaveDeOrden(a).compare(ClaveDeOrden(b));
    return orden != 0 ? orden : a.compare(b);
}

int RegistrarAlfabetico(sqlite3* conexion) {
    return sqlite3_create_collation_v2(conexion, "ALFABETICO", SQLITE_UTF8, nullptr, Cotejar, nullptr);
}

#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shellapi.h>
#include <shlwapi.h>

#include <array>

#include "core/online/plataforma/Navegador.h"

using namespace Qt::StringLiterals;

namespace {

const wchar_t* Ancha(const QString& texto) { return reinterpret_cast<const wchar_t*>(texto.utf16()); }

}  // namespace

QString BuscarNavegador() {
    std::array<wchar_t, 32768> programa{};
    DWORD largo = static_cast<DWORD>(programa.size());
    const HRESULT resultado =
        AssocQueryStringW(ASSOCF_NONE, ASSOCSTR_EXECUTABLE, L".htm", L"open", programa.data(), &largo);
    return resultado == S_OK ? QString::fromWCharArray(programa.data()) : QString();
}

void AbrirConNavegador(const QString& programa, const QString& pagina, quintptr ventana) {
    // No path and no web address holds a quotation mark.
    const QString parametro = u'"' + pagina + u'"';
    ShellExecuteW(reinterpret_cast<HWND>(ventana), L"open", Ancha(programa), Ancha(parametro), L"",
                  SW_SHOWNORMAL);
}

#include "app/Main.h"

#include "app/MDIZT.h"
#include "app/frmZTAbout.h"
#include "app/frmZTIdioma.h"
#include "app/frmZTInicio.h"
#include "core/online/VersionDelPrograma.h"
#include "core/run/plataforma/MarcaConNombre.h"
#include "core/start/Arranque.h"
#include "forms/copies/frmZTCopia.h"
#include "forms/copies/frmZTRestaurar.h"
#include "forms/copies/frmZTVuelta.h"
#include "forms/declarants/frmZTDeclarante.h"
#include "forms/declarants/frmZTListaDeclarantes.h"
#include "forms/declarations/frmZTDeclaracion.h"
#include "forms/declarations/frmZTDetDeclaracion.h"
#include "forms/declarations/frmZTListaDeclaraciones.h"
#include "forms/establishments/frmZTEstablecimiento.h"
#include "forms/establishments/frmZTListaEstablecimientos.h"
#include "forms/exchange/frmZTExpDeclarantes.h"
#include "forms/exchange/frmZTFicheroAExportar.h"
#include "forms/exchange/frmZTImpDeclarantes.h"
#include "forms/messages/frmZTGestErrores.h"
#include "forms/messages/frmZTListaErrores.h"
#include "forms/messages/frmZTMsgBox.h"
#include "forms/online/frmZTPreferencias.h"
#include "forms/online/frmZTSinConexion.h"
#include "forms/online/frmZTVersionCheck.h"
#include "forms/printing/frmZTImp.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"

void RegistrarFormularios() {
    RegistrarFormulario<MDIZT>();
    RegistrarFormulario<frmZTAbout>();
    RegistrarFormulario<frmZTCopia>();
    RegistrarFormulario<frmZTDeclaracion>();
    RegistrarFormulario<frmZTDeclarante>();
    RegistrarFormulario<frmZTDetDeclaracion>();
    RegistrarFormulario<frmZTEstablecimiento>();
    RegistrarFormulario<frmZTExpDeclarantes>();
    RegistrarFormulario<frmZTFicheroAExportar>();
    RegistrarFormulario<frmZTGestErrores>();
    RegistrarFormulario<frmZTIdioma>();
    RegistrarFormulario<frmZTImp>();
    RegistrarFormulario<frmZTImpDeclarantes>();
    RegistrarFormulario<frmZTInicio>();
    RegistrarFormulario<frmZTListaDeclaraciones>();
    RegistrarFormulario<frmZTListaDeclarantes>();
    RegistrarFormulario<frmZTListaErrores>();
    RegistrarFormulario<frmZTListaEstablecimientos>();
    RegistrarFormulario<frmZTMsgBox>();
    RegistrarFormulario<frmZTPreferencias>();
    RegistrarFormulario<frmZTRestaurar>();
    RegistrarFormulario<frmZTSinConexion>();
    RegistrarFormulario<frmZTVersionCheck>();
    RegistrarFormulario<frmZTVuelta>();
}

void Main() {
    PonerMarcaConNombre();
    ObtenerVersion();
    InicializarTodo();
    if (Traspaso() || !ConVuelta(InicializarEntorno)) {
        return;
    }
    Formularios::Mostrar(Forma::Inicio);
    Formularios::Descargar(Forma::Inicio);
    (void)ConVuelta([] {
        ExigirAlmacenSano();
        Formularios::Mostrar(Forma::MDIZT);
    });
}

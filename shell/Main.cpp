#include "shell/Main.h"

#include "declarants/frmZTDeclarante.h"
#include "declarants/frmZTListaDeclarantes.h"
#include "declarations/frmZTDeclaracion.h"
#include "declarations/frmZTDetDeclaracion.h"
#include "declarations/frmZTListaDeclaraciones.h"
#include "establishments/frmZTEstablecimiento.h"
#include "establishments/frmZTListaEstablecimientos.h"
#include "exchange/frmZTExpDeclarantes.h"
#include "exchange/frmZTFicheroAExportar.h"
#include "exchange/frmZTImpDeclarantes.h"
#include "online/frmZTPreferencias.h"
#include "online/frmZTSinConexion.h"
#include "online/frmZTVersionCheck.h"
#include "printing/frmZTImp.h"
#include "shell/Arranque.h"
#include "shell/Formularios.h"
#include "shell/MDIZT.h"
#include "shell/frmZTAbout.h"
#include "shell/frmZTCopia.h"
#include "shell/frmZTGestErrores.h"
#include "shell/frmZTIdioma.h"
#include "shell/frmZTInicio.h"
#include "shell/frmZTListaErrores.h"
#include "shell/frmZTMsgBox.h"
#include "shell/frmZTRestaurar.h"
#include "shell/frmZTVuelta.h"
#include "shell/plataforma/MarcaConNombre.h"

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
    if (Traspaso()) {
        return;
    }
    InicializarEntorno();
    Formularios::Mostrar(frmZTInicio::kNombre.toString());
    Formularios::Descargar(frmZTInicio::kNombre.toString());
    Formularios::Mostrar(MDIZT::kNombre.toString());
}

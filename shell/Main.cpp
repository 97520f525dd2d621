#include "shell/Main.h"

#include "declarants/frmZTDeclarante.h"
#include "declarants/frmZTListaDeclarantes.h"
#include "declarations/frmZTDeclaracion.h"
#include "declarations/frmZTDetDeclaracion.h"
#include "declarations/frmZTListaDeclaraciones.h"
#include "establishments/frmZTEstablecimiento.h"
#include "establishments/frmZTListaEstablecimientos.h"
#include "shell/Arranque.h"
#include "shell/Formularios.h"
#include "shell/MDIZT.h"
#include "shell/frmZTAbout.h"
#include "shell/frmZTGestErrores.h"
#include "shell/frmZTIdioma.h"
#include "shell/frmZTInicio.h"
#include "shell/frmZTListaErrores.h"
#include "shell/frmZTMsgBox.h"
#include "shell/plataforma/MarcaConNombre.h"

void RegistrarFormularios() {
    RegistrarFormulario<MDIZT>();
    RegistrarFormulario<frmZTAbout>();
    RegistrarFormulario<frmZTDeclaracion>();
    RegistrarFormulario<frmZTDeclarante>();
    RegistrarFormulario<frmZTDetDeclaracion>();
    RegistrarFormulario<frmZTEstablecimiento>();
    RegistrarFormulario<frmZTGestErrores>();
    RegistrarFormulario<frmZTIdioma>();
    RegistrarFormulario<frmZTInicio>();
    RegistrarFormulario<frmZTListaDeclaraciones>();
    RegistrarFormulario<frmZTListaDeclarantes>();
    RegistrarFormulario<frmZTListaErrores>();
    RegistrarFormulario<frmZTListaEstablecimientos>();
    RegistrarFormulario<frmZTMsgBox>();
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

#pragma once

class BotonImagen;
class QAbstractButton;

/// Names the picture twin of a button after it, for the tool tip and for screen readers: the text of the
/// button as it stands, without its access key and the blanks around it.
void NombrarGemelo(BotonImagen& imagen, const QAbstractButton& boton);

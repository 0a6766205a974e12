<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Se le guiará por los pasos necesarios para utilizar este software.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>No se ha encontrado ningún producto</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Los productos seleccionados se han instalado correctamente.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>La instalación no se ha completado correctamente.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Para seguir utilizando el software, debe aceptar los términos del contrato de licencia de software.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Haga clic en Aceptar para continuar o en Rechazar para cancelar y salir del instalador.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Leer licencia</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Rechazar</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Haga clic en «Instalar» para completar la instalación.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Para que el instalador pueda realizar cambios, permita el acceso al Finder en los ajustes.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Copiar al portapapeles</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Paso actual</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Progreso de la instalación</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ampliar/reducir</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Instalar los complementos de imagen y vídeo de Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>complemento;foto;vídeo;instalar;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Un asistente que instala los complementos de Corvellane para aplicaciones de foto y vídeo: muestra el contrato de licencia, permite elegir los productos, pide una sola vez la contraseña de un administrador y muestra el registro completo si algo sale mal.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Instalar complementos</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Se requiere autenticación para instalar los complementos de Corvellane seleccionados para todos los usuarios de este equipo</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Quitar complementos</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Se requiere autenticación para quitar los complementos de Corvellane seleccionados para todos los usuarios de este equipo</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar dirección del en&amp;lace</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Desplazar hasta aquí</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Principio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borde derecho</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página a la izquierda</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página arriba</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página a la derecha</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página abajo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Desplazar a la izquierda</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Desplazar a la derecha</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Desplazar hacia abajo</translation>
    </message>
</context>
</TS>

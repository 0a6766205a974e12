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
        <source>Corvellane Plugin Installer</source>
        <translation>Corvellane Plugin Installer</translation>
    </message>
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
</TS>

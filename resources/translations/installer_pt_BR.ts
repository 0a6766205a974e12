<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Próximo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Você será guiado pelas etapas necessárias para usar este software.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nenhum produto encontrado</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Os produtos selecionados foram instalados com sucesso.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>A instalação não foi concluída com sucesso.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Para continuar usando o software, você deve concordar com os termos do contrato de licença de software.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Clique em “Concordo” para continuar ou em “Discordo” para cancelar e sair do instalador.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Ler licença</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Discordo</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Concordo</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Clique em “Instalar” para concluir a instalação.</translation>
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
        <translation>Para que o instalador possa fazer alterações, permita o acesso ao Finder nas configurações.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Abrir configurações</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Copiar para a área de transferência</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Progresso da instalação</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Etapa atual</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ampliar/reduzir</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Instalar os plug-ins de imagem e vídeo da Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>plug-in;foto;vídeo;instalar;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Um assistente que instala os plug-ins da Corvellane para aplicativos de foto e vídeo: mostra o contrato de licença, permite escolher os produtos, pede uma única vez a senha de um administrador e mostra o registro completo se algo der errado.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Instalar plug-ins</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>É necessária autenticação para instalar os plug-ins da Corvellane selecionados para todos os usuários deste computador</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Remover plug-ins</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>É necessária autenticação para remover os plug-ins da Corvellane selecionados para todos os usuários deste computador</translation>
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
        <translation>Copiar endereço do &amp;link</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rolar até aqui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borda esquerda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borda direita</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página à esquerda</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página acima</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página à direita</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página abaixo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rolar para a esquerda</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rolar para cima</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rolar para a direita</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rolar para baixo</translation>
    </message>
</context>
</TS>

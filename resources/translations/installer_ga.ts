<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ga" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Roghnaigh uile</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Siar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Ar aghaidh</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Dún</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Treorófar tú trí na céimeanna is gá chun an bogearra seo a úsáid.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Níor aimsíodh aon táirge</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Suiteáladh na táirgí roghnaithe.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Níor críochnaíodh an tsuiteáil.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Mionsonraí</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Chun leanúint den bhogearra a úsáid, ní mór duit aontú le téarmaí an chomhaontaithe ceadúnais bogearraí.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Cliceáil “Aontaím” chun leanúint ar aghaidh, nó “Ní aontaím” chun cealú agus an suiteálaí a scor.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Léigh an ceadúnas</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Ní aontaím</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Aontaím</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Cliceáil “Suiteáil” chun an tsuiteáil a chríochnú.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cealaigh</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Suiteáil</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Chun go bhféadfaidh an suiteálaí athruithe a dhéanamh, ceadaigh rochtain ar Finder sna socruithe.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Oscail na socruithe</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Cóipeáil go dtí an ghearrthaisce</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Dul chun cinn na suiteála</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>An chéim reatha</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Scoir</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fuinneog</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Íoslaghdaigh</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zúmáil</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Suiteáil breiseáin íomhá agus físe Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>breiseán;grianghraf;físeán;suiteáil;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Draoi a shuiteálann breiseáin Corvellane d’fheidhmchláir ghrianghraf agus físe: taispeánann sé an comhaontú ceadúnais, ligeann sé duit na táirgí a roghnú, iarrann sé pasfhocal riarthóra uair amháin, agus taispeánann sé an loga iomlán má théann rud éigin amú.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Suiteáil breiseáin</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Tá fíordheimhniú de dhíth chun na breiseáin Corvellane roghnaithe a shuiteáil do gach úsáideoir ar an ríomhaire seo</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Bain breiseáin</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Tá fíordheimhniú de dhíth chun na breiseáin Corvellane roghnaithe a bhaint do gach úsáideoir ar an ríomhaire seo</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Cóipeáil</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Cóipeáil seoladh an &amp;naisc</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Roghnaigh uile</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scrollaigh anseo</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Ciumhais chlé</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Barr</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Ciumhais dheas</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bun</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Leathanach ar chlé</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Leathanach suas</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Leathanach ar dheis</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Leathanach síos</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scrollaigh ar chlé</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scrollaigh suas</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scrollaigh ar dheis</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scrollaigh síos</translation>
    </message>
</context>
</TS>

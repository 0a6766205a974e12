<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>पीछे</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>आगे</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>इस सॉफ़्टवेयर के उपयोग के लिए आवश्यक चरणों में आपका मार्गदर्शन किया जाएगा।</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>कोई उत्पाद नहीं मिला</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>चुने गए उत्पाद सफलतापूर्वक इंस्टॉल हो गए हैं।</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>इंस्टॉलेशन सफलतापूर्वक पूरा नहीं हुआ।</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>विवरण</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>सॉफ़्टवेयर का उपयोग जारी रखने के लिए आपको सॉफ़्टवेयर लाइसेंस अनुबंध की शर्तों से सहमत होना होगा।</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>जारी रखने के लिए “सहमत” पर क्लिक करें, या रद्द करके इंस्टॉलर से बाहर निकलने के लिए “असहमत” पर क्लिक करें।</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>लाइसेंस पढ़ें</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>असहमत</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>सहमत</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>इंस्टॉलेशन पूरा करने के लिए “इंस्टॉल करें” पर क्लिक करें।</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>इंस्टॉल करें</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>इंस्टॉलर बदलाव कर सके, इसके लिए कृपया सेटिंग में Finder की पहुँच की अनुमति दें।</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>सेटिंग खोलें</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>क्लिपबोर्ड पर कॉपी करें</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>इंस्टॉलेशन की प्रगति</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>वर्तमान चरण</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>विंडो</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>छोटा करें</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ज़ूम करें</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Corvellane के चित्र और वीडियो प्लग-इन इंस्टॉल करें</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>प्लग-इन;फ़ोटो;वीडियो;इंस्टॉल;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>फ़ोटो और वीडियो अनुप्रयोगों के लिए Corvellane प्लग-इन इंस्टॉल करने वाला विज़ार्ड: यह लाइसेंस अनुबंध दिखाता है, उत्पाद चुनने देता है, प्रशासक का पासवर्ड केवल एक बार पूछता है और कुछ गड़बड़ होने पर पूरा लॉग दिखाता है।</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>प्लग-इन इंस्टॉल करें</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>इस कंप्यूटर के सभी उपयोगकर्ताओं के लिए चुने गए Corvellane प्लग-इन इंस्टॉल करने हेतु प्रमाणीकरण आवश्यक है</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>प्लग-इन हटाएँ</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>इस कंप्यूटर के सभी उपयोगकर्ताओं के लिए चुने गए Corvellane प्लग-इन हटाने हेतु प्रमाणीकरण आवश्यक है</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>लिंक का पता कॉपी करें (&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>यहाँ तक स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>बायाँ किनारा</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>शीर्ष</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>दायाँ किनारा</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>तल</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>पृष्ठ बाएँ</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>पृष्ठ ऊपर</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>पृष्ठ दाएँ</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>पृष्ठ नीचे</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>बाएँ स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>ऊपर स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>दाएँ स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>नीचे स्क्रॉल करें</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Localizable</name>
    <message>
        <source> - Utility</source>
        <translation> - Dienstprogramm</translation>
    </message>
    <message>
        <source>Orvo Printer Utility</source>
        <translation>Orvo Druckerdienstprogramm</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>IntroText</source>
        <translation>Richten Sie für diese Druckerwarteschlange die freigegebenen Ordner, Formulare, Barcodebereichsdefinitionen und Farbprofile des Druckers ein.</translation>
    </message>
    <message>
        <source>SNMP Community Name</source>
        <translation>SNMP-Community-Name</translation>
    </message>
    <message>
        <source>Wake On LAN</source>
        <translation>Wake on LAN</translation>
    </message>
    <message>
        <source>MAC Address of the Printer:</source>
        <translation>&amp;MAC-Adresse des Druckers:</translation>
    </message>
    <message>
        <source>MAC address, byte %1</source>
        <translation>MAC-Adresse, Byte %1</translation>
    </message>
    <message>
        <source>Connect to Another Network</source>
        <translation>Mit einem anderen Netzwerk verbinden</translation>
    </message>
    <message>
        <source>IP address of the printer:</source>
        <translation>&amp;IP-Adresse des Druckers:</translation>
    </message>
    <message>
        <source>Get Printer Info</source>
        <translation>Druckerinformationen abrufen</translation>
    </message>
    <message>
        <source>Getting information from printer...</source>
        <translation>Informationen werden vom Drucker abgerufen...</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Barcode area definition</source>
        <translation>Barcodebereichsdefinition</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>Farbprofil</translation>
    </message>
    <message>
        <source>Shared folder in the printer</source>
        <translation>Freigegebener Ordner im Drucker</translation>
    </message>
    <message>
        <source>Register folder</source>
        <translation>Registrierter Ordner</translation>
    </message>
    <message>
        <source>Add -&gt;</source>
        <translation>Hinzufügen -&gt;</translation>
    </message>
    <message>
        <source>&lt;- Delete</source>
        <translation>&lt;- Löschen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Use Personal folder</source>
        <translation>Persönlichen Ordner verwenden</translation>
    </message>
    <message>
        <source>Failed to obtain information.</source>
        <translation>Die Informationen konnten nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TOO_LONG</source>
        <translation>Diese Einstellungen sind zu lang, um vom Druckserver an den Druckertreiber übergeben zu werden, und können nicht gespeichert werden. Kürzen Sie diese Listen und klicken Sie erneut auf OK:</translation>
    </message>
    <message>
        <source>The SNMP community name cannot contain "%1".</source>
        <translation>Der SNMP-Community-Name darf „%1“ nicht enthalten.</translation>
    </message>
    <message>
        <source>The SNMP community name is longer than %1 characters.</source>
        <translation>Der SNMP-Community-Name ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>The IP address of the printer must be an IPv4 or IPv6 address, or a host name of at most %1 characters.</source>
        <translation>Die IP-Adresse des Druckers muss eine IPv4- oder IPv6-Adresse oder ein Hostname mit höchstens %1 Zeichen sein.</translation>
    </message>
    <message>
        <source>The MAC address of the printer is incomplete: each of its six bytes needs two hexadecimal digits (0-9, A-F).</source>
        <translation>Die MAC-Adresse des Druckers ist unvollständig: Jedes ihrer sechs Bytes braucht zwei Hexadezimalziffern (0-9, A-F).</translation>
    </message>
    <message>
        <source>Wake On LAN needs the MAC address of the printer. Enter it, or turn Wake On LAN off.</source>
        <translation>Wake on LAN braucht die MAC-Adresse des Druckers. Geben Sie sie ein oder schalten Sie Wake on LAN aus.</translation>
    </message>
    <message>
        <source>The list "%1" holds more than %2 entries.</source>
        <translation>Die Liste „%1“ enthält mehr als %2 Einträge.</translation>
    </message>
    <message>
        <source>A name in the list "%1" is longer than %2 bytes.</source>
        <translation>Ein Name in der Liste „%1“ ist länger als %2 Byte.</translation>
    </message>
    <message>
        <source>"%1" holds a value that cannot be saved.</source>
        <translation>„%1“ enthält einen Wert, der nicht gespeichert werden kann.</translation>
    </message>
    <message>
        <source>IDS_QUEUE_NOT_SET_UP</source>
        <translation>Die Druckwarteschlange „%1“ ist nicht dafür eingerichtet, die Einstellungen des Dienstprogramms zu speichern; es kann noch nichts in ihr gespeichert werden. Wählen Sie „Einrichten…“, um sie einzurichten; der Druckserver fragt eventuell nach dem Passwort eines Administrators.</translation>
    </message>
    <message>
        <source>Shared Folder 1</source>
        <translation>Freigegebener Ordner 1</translation>
    </message>
    <message>
        <source>Shared Folder 2</source>
        <translation>Freigegebener Ordner 2</translation>
    </message>
    <message>
        <source>Shared Folder 3</source>
        <translation>Freigegebener Ordner 3</translation>
    </message>
    <message>
        <source>Shared Folder 4</source>
        <translation>Freigegebener Ordner 4</translation>
    </message>
    <message>
        <source>Shared Folder 5</source>
        <translation>Freigegebener Ordner 5</translation>
    </message>
    <message>
        <source>Shared Folder 6</source>
        <translation>Freigegebener Ordner 6</translation>
    </message>
    <message>
        <source>Shared Folder 7</source>
        <translation>Freigegebener Ordner 7</translation>
    </message>
    <message>
        <source>Shared Folder 8</source>
        <translation>Freigegebener Ordner 8</translation>
    </message>
    <message>
        <source>Shared Folder 9</source>
        <translation>Freigegebener Ordner 9</translation>
    </message>
    <message>
        <source>Shared Folder 10</source>
        <translation>Freigegebener Ordner 10</translation>
    </message>
    <message>
        <source>Shared Folder 11</source>
        <translation>Freigegebener Ordner 11</translation>
    </message>
    <message>
        <source>Shared Folder 12</source>
        <translation>Freigegebener Ordner 12</translation>
    </message>
    <message>
        <source>Shared Folder 13</source>
        <translation>Freigegebener Ordner 13</translation>
    </message>
    <message>
        <source>Shared Folder 14</source>
        <translation>Freigegebener Ordner 14</translation>
    </message>
    <message>
        <source>Shared Folder 15</source>
        <translation>Freigegebener Ordner 15</translation>
    </message>
    <message>
        <source>Shared Folder 16</source>
        <translation>Freigegebener Ordner 16</translation>
    </message>
    <message>
        <source>Shared Folder 17</source>
        <translation>Freigegebener Ordner 17</translation>
    </message>
    <message>
        <source>Shared Folder 18</source>
        <translation>Freigegebener Ordner 18</translation>
    </message>
    <message>
        <source>Shared Folder 19</source>
        <translation>Freigegebener Ordner 19</translation>
    </message>
    <message>
        <source>Shared Folder 20</source>
        <translation>Freigegebener Ordner 20</translation>
    </message>
    <message>
        <source>Shared Folder 21</source>
        <translation>Freigegebener Ordner 21</translation>
    </message>
    <message>
        <source>Shared Folder 22</source>
        <translation>Freigegebener Ordner 22</translation>
    </message>
    <message>
        <source>Shared Folder 23</source>
        <translation>Freigegebener Ordner 23</translation>
    </message>
    <message>
        <source>Shared Folder 24</source>
        <translation>Freigegebener Ordner 24</translation>
    </message>
    <message>
        <source>Shared Folder 25</source>
        <translation>Freigegebener Ordner 25</translation>
    </message>
    <message>
        <source>Shared Folder 26</source>
        <translation>Freigegebener Ordner 26</translation>
    </message>
    <message>
        <source>Shared Folder 27</source>
        <translation>Freigegebener Ordner 27</translation>
    </message>
    <message>
        <source>Shared Folder 28</source>
        <translation>Freigegebener Ordner 28</translation>
    </message>
    <message>
        <source>Shared Folder 29</source>
        <translation>Freigegebener Ordner 29</translation>
    </message>
    <message>
        <source>Shared Folder 30</source>
        <translation>Freigegebener Ordner 30</translation>
    </message>
    <message>
        <source>Shared Folder 31</source>
        <translation>Freigegebener Ordner 31</translation>
    </message>
    <message>
        <source>Shared Folder 32</source>
        <translation>Freigegebener Ordner 32</translation>
    </message>
    <message>
        <source>Shared Folder 33</source>
        <translation>Freigegebener Ordner 33</translation>
    </message>
    <message>
        <source>Shared Folder 34</source>
        <translation>Freigegebener Ordner 34</translation>
    </message>
    <message>
        <source>Shared Folder 35</source>
        <translation>Freigegebener Ordner 35</translation>
    </message>
    <message>
        <source>Shared Folder 36</source>
        <translation>Freigegebener Ordner 36</translation>
    </message>
    <message>
        <source>Shared Folder 37</source>
        <translation>Freigegebener Ordner 37</translation>
    </message>
    <message>
        <source>Shared Folder 38</source>
        <translation>Freigegebener Ordner 38</translation>
    </message>
    <message>
        <source>Shared Folder 39</source>
        <translation>Freigegebener Ordner 39</translation>
    </message>
    <message>
        <source>Shared Folder 40</source>
        <translation>Freigegebener Ordner 40</translation>
    </message>
    <message>
        <source>Shared Folder 41</source>
        <translation>Freigegebener Ordner 41</translation>
    </message>
    <message>
        <source>Shared Folder 42</source>
        <translation>Freigegebener Ordner 42</translation>
    </message>
    <message>
        <source>Shared Folder 43</source>
        <translation>Freigegebener Ordner 43</translation>
    </message>
    <message>
        <source>Shared Folder 44</source>
        <translation>Freigegebener Ordner 44</translation>
    </message>
    <message>
        <source>Shared Folder 45</source>
        <translation>Freigegebener Ordner 45</translation>
    </message>
    <message>
        <source>Shared Folder 46</source>
        <translation>Freigegebener Ordner 46</translation>
    </message>
    <message>
        <source>Shared Folder 47</source>
        <translation>Freigegebener Ordner 47</translation>
    </message>
    <message>
        <source>Shared Folder 48</source>
        <translation>Freigegebener Ordner 48</translation>
    </message>
    <message>
        <source>Shared Folder 49</source>
        <translation>Freigegebener Ordner 49</translation>
    </message>
    <message>
        <source>Shared Folder 50</source>
        <translation>Freigegebener Ordner 50</translation>
    </message>
    <message>
        <source>Shared Folder 51</source>
        <translation>Freigegebener Ordner 51</translation>
    </message>
    <message>
        <source>Shared Folder 52</source>
        <translation>Freigegebener Ordner 52</translation>
    </message>
    <message>
        <source>Shared Folder 53</source>
        <translation>Freigegebener Ordner 53</translation>
    </message>
    <message>
        <source>Shared Folder 54</source>
        <translation>Freigegebener Ordner 54</translation>
    </message>
    <message>
        <source>Shared Folder 55</source>
        <translation>Freigegebener Ordner 55</translation>
    </message>
    <message>
        <source>Shared Folder 56</source>
        <translation>Freigegebener Ordner 56</translation>
    </message>
    <message>
        <source>Shared Folder 57</source>
        <translation>Freigegebener Ordner 57</translation>
    </message>
    <message>
        <source>Shared Folder 58</source>
        <translation>Freigegebener Ordner 58</translation>
    </message>
    <message>
        <source>Shared Folder 59</source>
        <translation>Freigegebener Ordner 59</translation>
    </message>
    <message>
        <source>Shared Folder 60</source>
        <translation>Freigegebener Ordner 60</translation>
    </message>
    <message>
        <source>Shared Folder 61</source>
        <translation>Freigegebener Ordner 61</translation>
    </message>
    <message>
        <source>Shared Folder 62</source>
        <translation>Freigegebener Ordner 62</translation>
    </message>
    <message>
        <source>Shared Folder 63</source>
        <translation>Freigegebener Ordner 63</translation>
    </message>
    <message>
        <source>Shared Folder 64</source>
        <translation>Freigegebener Ordner 64</translation>
    </message>
    <message>
        <source>Shared Folder 65</source>
        <translation>Freigegebener Ordner 65</translation>
    </message>
    <message>
        <source>Shared Folder 66</source>
        <translation>Freigegebener Ordner 66</translation>
    </message>
    <message>
        <source>Shared Folder 67</source>
        <translation>Freigegebener Ordner 67</translation>
    </message>
    <message>
        <source>Shared Folder 68</source>
        <translation>Freigegebener Ordner 68</translation>
    </message>
    <message>
        <source>Shared Folder 69</source>
        <translation>Freigegebener Ordner 69</translation>
    </message>
    <message>
        <source>Shared Folder 70</source>
        <translation>Freigegebener Ordner 70</translation>
    </message>
    <message>
        <source>Shared Folder 71</source>
        <translation>Freigegebener Ordner 71</translation>
    </message>
    <message>
        <source>Shared Folder 72</source>
        <translation>Freigegebener Ordner 72</translation>
    </message>
    <message>
        <source>Shared Folder 73</source>
        <translation>Freigegebener Ordner 73</translation>
    </message>
    <message>
        <source>Shared Folder 74</source>
        <translation>Freigegebener Ordner 74</translation>
    </message>
    <message>
        <source>Shared Folder 75</source>
        <translation>Freigegebener Ordner 75</translation>
    </message>
    <message>
        <source>Shared Folder 76</source>
        <translation>Freigegebener Ordner 76</translation>
    </message>
    <message>
        <source>Shared Folder 77</source>
        <translation>Freigegebener Ordner 77</translation>
    </message>
    <message>
        <source>Shared Folder 78</source>
        <translation>Freigegebener Ordner 78</translation>
    </message>
    <message>
        <source>Shared Folder 79</source>
        <translation>Freigegebener Ordner 79</translation>
    </message>
    <message>
        <source>Shared Folder 80</source>
        <translation>Freigegebener Ordner 80</translation>
    </message>
    <message>
        <source>Shared Folder 81</source>
        <translation>Freigegebener Ordner 81</translation>
    </message>
    <message>
        <source>Shared Folder 82</source>
        <translation>Freigegebener Ordner 82</translation>
    </message>
    <message>
        <source>Shared Folder 83</source>
        <translation>Freigegebener Ordner 83</translation>
    </message>
    <message>
        <source>Shared Folder 84</source>
        <translation>Freigegebener Ordner 84</translation>
    </message>
    <message>
        <source>Shared Folder 85</source>
        <translation>Freigegebener Ordner 85</translation>
    </message>
    <message>
        <source>Shared Folder 86</source>
        <translation>Freigegebener Ordner 86</translation>
    </message>
    <message>
        <source>Shared Folder 87</source>
        <translation>Freigegebener Ordner 87</translation>
    </message>
    <message>
        <source>Shared Folder 88</source>
        <translation>Freigegebener Ordner 88</translation>
    </message>
    <message>
        <source>Shared Folder 89</source>
        <translation>Freigegebener Ordner 89</translation>
    </message>
    <message>
        <source>Shared Folder 90</source>
        <translation>Freigegebener Ordner 90</translation>
    </message>
    <message>
        <source>Shared Folder 91</source>
        <translation>Freigegebener Ordner 91</translation>
    </message>
    <message>
        <source>Shared Folder 92</source>
        <translation>Freigegebener Ordner 92</translation>
    </message>
    <message>
        <source>Shared Folder 93</source>
        <translation>Freigegebener Ordner 93</translation>
    </message>
    <message>
        <source>Shared Folder 94</source>
        <translation>Freigegebener Ordner 94</translation>
    </message>
    <message>
        <source>Shared Folder 95</source>
        <translation>Freigegebener Ordner 95</translation>
    </message>
    <message>
        <source>Shared Folder 96</source>
        <translation>Freigegebener Ordner 96</translation>
    </message>
    <message>
        <source>Shared Folder 97</source>
        <translation>Freigegebener Ordner 97</translation>
    </message>
    <message>
        <source>Shared Folder 98</source>
        <translation>Freigegebener Ordner 98</translation>
    </message>
    <message>
        <source>Shared Folder 99</source>
        <translation>Freigegebener Ordner 99</translation>
    </message>
    <message>
        <source>Shared Folder 100</source>
        <translation>Freigegebener Ordner 100</translation>
    </message>
    <message>
        <source>Choose a Print Queue</source>
        <translation>Druckwarteschlange auswählen</translation>
    </message>
    <message>
        <source>Choose the print queue whose printer settings you want to change.</source>
        <translation>Wählen Sie die Druckwarteschlange, deren Druckereinstellungen Sie ändern möchten.</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Name, description, make or model</source>
        <translation>Name, Beschreibung, Hersteller oder Modell</translation>
    </message>
    <message>
        <source>Print queues</source>
        <translation>Druckwarteschlangen</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Make and Model</source>
        <translation>Hersteller und Modell</translation>
    </message>
    <message>
        <source>Utility</source>
        <translation>Dienstprogramm</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Eingerichtet</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>Nicht eingerichtet</translation>
    </message>
    <message>
        <source>Damaged: repair it</source>
        <translation>Beschädigt: reparieren</translation>
    </message>
    <message>
        <source>Asking the print server for its queues...</source>
        <translation>Die Warteschlangen werden beim Druckserver abgefragt...</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached. Check that it is running, then try again.</source>
        <translation>Der Druckserver %1 ist nicht erreichbar. Prüfen Sie, ob er läuft, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The print server %1 has no print queues. Add a printer, then try again.</source>
        <translation>Der Druckserver %1 hat keine Druckwarteschlangen. Fügen Sie einen Drucker hinzu und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Password Required</source>
        <translation>Passwort erforderlich</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password to change the queue &quot;%2&quot;.</source>
        <translation>Der Druckserver %1 verlangt einen Benutzernamen und ein Passwort, um die Warteschlange „%2“ zu ändern.</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password.</source>
        <translation>Der Druckserver %1 verlangt einen Benutzernamen und ein Passwort.</translation>
    </message>
    <message>
        <source>The user name or password was not accepted. Try again.</source>
        <translation>Benutzername oder Passwort wurde nicht akzeptiert. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Loading settings...</source>
        <translation>Einstellungen werden geladen...</translation>
    </message>
    <message>
        <source>Saving settings...</source>
        <translation>Einstellungen werden gespeichert...</translation>
    </message>
    <message>
        <source>Setting up the queue...</source>
        <translation>Warteschlange wird eingerichtet...</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Einrichten…</translation>
    </message>
    <message>
        <source>The print server %1 has no print queue "%2".</source>
        <translation>Der Druckserver %1 hat keine Druckwarteschlange „%2“.</translation>
    </message>
    <message>
        <source>The print queue "%1" has no PPD, so it keeps no printer settings.</source>
        <translation>Die Druckwarteschlange „%1“ hat keine PPD-Datei und speichert daher keine Druckereinstellungen.</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" cannot be read, so its settings cannot be shown or saved.</source>
        <translation>Die PPD-Datei der Druckwarteschlange „%1“ kann nicht gelesen werden; ihre Einstellungen können daher weder angezeigt noch gespeichert werden.</translation>
    </message>
    <message>
        <source>The print queue "%1" was not set up: the print server did not accept the user name and password.</source>
        <translation>Die Druckwarteschlange „%1“ wurde nicht eingerichtet: Der Druckserver hat Benutzername und Passwort nicht angenommen.</translation>
    </message>
    <message>
        <source>The print server %1 lacks the utility's driver filter, so its queues cannot be set up. Install the utility on the print server first.</source>
        <translation>Dem Druckserver %1 fehlt der Treiberfilter des Dienstprogramms, daher können seine Warteschlangen nicht eingerichtet werden. Installieren Sie das Dienstprogramm zuerst auf dem Druckserver.</translation>
    </message>
    <message>
        <source>You may not change this queue's settings: the print queue "%1" names who may save them. They are shown read-only.</source>
        <translation>Sie dürfen die Einstellungen dieser Warteschlange nicht ändern: Die Druckwarteschlange „%1“ legt fest, wer sie speichern darf. Sie werden schreibgeschützt angezeigt.</translation>
    </message>
    <message>
        <source>The print queue "%1" could not be set up: %2</source>
        <translation>Die Druckwarteschlange „%1“ konnte nicht eingerichtet werden: %2</translation>
    </message>
    <message>
        <source>The print server refused the settings (%1). Nothing was saved.</source>
        <translation>Der Druckserver hat die Einstellungen abgelehnt (%1). Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The print server stopped answering while the settings were saved. Whether they arrived shows when the window is opened again.</source>
        <translation>Der Druckserver hat während des Speicherns aufgehört zu antworten. Ob die Einstellungen angekommen sind, zeigt sich beim nächsten Öffnen des Fensters.</translation>
    </message>
    <message>
        <source>The print server ended update job %1 before it stored the settings, so nothing was saved. Check the print queue on the server, then try again.</source>
        <translation>Der Druckserver hat den Aktualisierungsauftrag %1 beendet, bevor er die Einstellungen gespeichert hat; es wurde nichts gespeichert. Prüfen Sie die Druckwarteschlange auf dem Server und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Update job %1 did not end in time; the print queue may be paused. The settings are stored when the queue runs again, unless the job is cancelled.</source>
        <translation>Der Aktualisierungsauftrag %1 wurde nicht rechtzeitig beendet; die Druckwarteschlange ist vielleicht angehalten. Die Einstellungen werden gespeichert, sobald sie wieder läuft, sofern der Auftrag nicht abgebrochen wird.</translation>
    </message>
    <message>
        <source>Update job %1 ended, but the queue's PPD does not hold every setting (%2). Try again.</source>
        <translation>Der Aktualisierungsauftrag %1 ist beendet, aber die PPD-Datei der Warteschlange enthält nicht alle Einstellungen (%2). Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" was damaged while the settings were stored. Choose "Repair…" to rebuild it, then save.</source>
        <translation>Die PPD-Datei der Druckwarteschlange „%1“ wurde beim Speichern beschädigt. Wählen Sie „Reparieren…“, um sie neu aufzubauen, und speichern Sie dann.</translation>
    </message>
    <message>
        <source>The settings were sent, but the queue's PPD could not be read back to check them. Open the window again to see what is stored.</source>
        <translation>Die Einstellungen wurden gesendet, aber die PPD-Datei der Warteschlange konnte zur Prüfung nicht gelesen werden. Öffnen Sie das Fenster erneut, um zu sehen, was gespeichert ist.</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Reparieren…</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" is damaged, so its settings cannot be shown or saved. Choose "Repair…" to rebuild it from the queue's driver with the settings it still holds.</source>
        <translation>Die PPD-Datei der Druckwarteschlange „%1“ ist beschädigt; ihre Einstellungen können weder angezeigt noch gespeichert werden. Wählen Sie „Reparieren…“, um sie aus dem Treiber der Warteschlange neu aufzubauen, mit den Einstellungen, die sie noch enthält.</translation>
    </message>
    <message>
        <source>The print server stopped answering, so whether the print queue "%1" was changed is not known. Try again once the server answers: only what is not done yet is done again.</source>
        <translation>Der Druckserver antwortet nicht mehr; ob die Druckwarteschlange „%1“ geändert wurde, ist nicht bekannt. Versuchen Sie es erneut, sobald der Server antwortet: Nur was noch fehlt, wird erneut ausgeführt.</translation>
    </message>
    <message>
        <source>The print server has no driver for "%2", the printer of the queue "%1", so its PPD cannot be rebuilt. A print administrator can give the queue its driver (lpadmin -m), then set it up.</source>
        <translation>Der Druckserver hat keinen Treiber für „%2“, den Drucker der Warteschlange „%1“; ihre PPD-Datei kann nicht neu aufgebaut werden. Ein Druckadministrator kann der Warteschlange ihren Treiber geben (lpadmin -m) und sie dann einrichten.</translation>
    </message>
    <message>
        <source>Update job %1 ended, then a later save to this print queue (update job %2) replaced its settings. Open the window again to see what is stored.</source>
        <translation>Der Aktualisierungsauftrag %1 wurde beendet, dann hat ein späteres Speichern in dieser Druckwarteschlange (Aktualisierungsauftrag %2) seine Einstellungen ersetzt. Öffnen Sie das Fenster erneut, um zu sehen, was gespeichert ist.</translation>
    </message>
    <message>
        <source>Discard the changes to the settings?</source>
        <translation>Die Änderungen an den Einstellungen verwerfen?</translation>
    </message>
    <message>
        <source>They were not saved to the print queue.</source>
        <translation>Sie wurden nicht in der Druckwarteschlange gespeichert.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>It may hold the letters A-Z and a-z, the digits 0-9 and these characters: %1</source>
        <translation>Er darf die Buchstaben A-Z und a-z, die Ziffern 0-9 und diese Zeichen enthalten: %1</translation>
    </message>
    <message>
        <source>The IP address of the printer is empty. Enter it, then try again.</source>
        <translation>Die IP-Adresse des Druckers ist leer. Geben Sie sie ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMP community name may be wrong.</source>
        <translation>Der Drucker unter %1 hat auf die Frage nach %2 nicht geantwortet. Die IP-Adresse oder der SNMP-Community-Name ist möglicherweise falsch.</translation>
    </message>
    <message>
        <source>The printer at %1 answered with an error when asked for %2. It may not keep this information.</source>
        <translation>Der Drucker unter %1 hat auf die Frage nach %2 mit einem Fehler geantwortet. Möglicherweise führt er diese Informationen nicht.</translation>
    </message>
    <message>
        <source>The printer at %1 sent an answer that cannot be read when asked for %2.</source>
        <translation>Der Drucker unter %1 hat auf die Frage nach %2 eine Antwort gesendet, die nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>its MAC address</source>
        <translation>seiner MAC-Adresse</translation>
    </message>
    <message>
        <source>its shared folders</source>
        <translation>seinen freigegebenen Ordnern</translation>
    </message>
    <message>
        <source>its forms</source>
        <translation>seinen Formularen</translation>
    </message>
    <message>
        <source>its barcode area definitions</source>
        <translation>seinen Barcodebereichsdefinitionen</translation>
    </message>
    <message>
        <source>its color profiles</source>
        <translation>seinen Farbprofilen</translation>
    </message>
    <message>
        <source>Ask the printer at this IP address for its MAC address, shared folders, forms, barcode area definitions and color profiles.</source>
        <translation>Den Drucker unter dieser IP-Adresse nach MAC-Adresse, freigegebenen Ordnern, Formularen, Barcodebereichsdefinitionen und Farbprofilen fragen.</translation>
    </message>
    <message>
        <source>Ask the printer for this list.</source>
        <translation>Den Drucker nach dieser Liste fragen.</translation>
    </message>
    <message>
        <source>Empty this list. The queue keeps its stored list until you choose OK.</source>
        <translation>Diese Liste leeren. Die Warteschlange behält ihre gespeicherte Liste, bis Sie OK wählen.</translation>
    </message>
    <message>
        <source>Also offer each user's personal folder. The printer allows it when its administrator login mode is on.</source>
        <translation>Auch den persönlichen Ordner jedes Benutzers anbieten. Der Drucker erlaubt dies, wenn sein Administrator-Anmeldemodus eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Wake the printer also when it is in another network, behind a router.</source>
        <translation>Den Drucker auch wecken, wenn er sich in einem anderen Netzwerk hinter einem Router befindet.</translation>
    </message>
    <message>
        <source>Drop the registered folders?</source>
        <translation>Die registrierten Ordner entfernen?</translation>
    </message>
    <message>
        <source>The default folders take their place. The queue keeps its stored folders until you choose OK.</source>
        <translation>An ihre Stelle treten die Standardordner. Die Warteschlange behält ihre gespeicherten Ordner, bis Sie OK wählen.</translation>
    </message>
    <message>
        <source>No queue matches the filter.</source>
        <translation>Keine Warteschlange passt zum Filter.</translation>
    </message>
    <message>
        <source>The print queue "%1" is stopped: settings saved now are stored only once it runs again.</source>
        <translation>Die Druckwarteschlange „%1“ ist angehalten: Jetzt gesicherte Einstellungen werden erst gespeichert, wenn sie wieder läuft.</translation>
    </message>
    <message>
        <source>No printer address is stored for the queue "%1". It prints to %2.</source>
        <translation>Für die Warteschlange „%1“ ist keine Druckeradresse gespeichert. Sie druckt an %2.</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Other Server…</source>
        <translation>Anderer Server…</translation>
    </message>
    <message>
        <source>Connect to a Print Server</source>
        <translation>Mit einem Druckserver verbinden</translation>
    </message>
    <message>
        <source>Print server (host or host:port):</source>
        <translation>Druckserver (Host oder Host:Port):</translation>
    </message>
    <message>
        <source>"%1" names no print server. Enter a host name or address, with a port if it is not 631.</source>
        <translation>„%1“ bezeichnet keinen Druckserver. Geben Sie einen Hostnamen oder eine Adresse ein, mit Port, wenn er nicht 631 ist.</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMPv3 privacy passphrase may be wrong.</source>
        <translation>Der Drucker unter %1 hat auf die Abfrage von %2 nicht geantwortet. Die IP-Adresse oder die SNMPv3-Privacy-Passphrase ist möglicherweise falsch.</translation>
    </message>
    <message>
        <source>The printer at %1 has no SNMPv3 user of this name (asked for %2). Check the user name under SNMP Security.</source>
        <translation>Der Drucker unter %1 hat keinen SNMPv3-Benutzer dieses Namens (Abfrage von %2). Prüfen Sie den Benutzernamen unter SNMP-Sicherheit.</translation>
    </message>
    <message>
        <source>The printer at %1 refused the authentication passphrase of the SNMPv3 user when asked for %2. Enter it again under SNMP Security.</source>
        <translation>Der Drucker unter %1 hat bei der Abfrage von %2 die Authentifizierungs-Passphrase des SNMPv3-Benutzers abgelehnt. Geben Sie sie unter SNMP-Sicherheit erneut ein.</translation>
    </message>
    <message>
        <source>The printer at %1 does not accept the SNMPv3 user with privacy as chosen (asked for %2). Check the privacy protocol under SNMP Security.</source>
        <translation>Der Drucker unter %1 akzeptiert den SNMPv3-Benutzer mit der gewählten Verschlüsselung nicht (Abfrage von %2). Prüfen Sie das Privacy-Protokoll unter SNMP-Sicherheit.</translation>
    </message>
    <message>
        <source>No host is known as "%1". Check the printer's IP address.</source>
        <translation>Kein Host ist unter dem Namen „%1“ bekannt. Prüfen Sie die IP-Adresse des Druckers.</translation>
    </message>
    <message>
        <source>SNMP Security…</source>
        <translation>SNMP-Sic&amp;herheit…</translation>
    </message>
    <message>
        <source>SNMP v1 with the community name</source>
        <translation>SNMP v1 mit dem Community-Namen</translation>
    </message>
    <message>
        <source>SNMPv3 with a user</source>
        <translation>SNMPv3 mit einem Benutzer</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Authentication:</source>
        <translation>Authentifizierung:</translation>
    </message>
    <message>
        <source>Authentication passphrase:</source>
        <translation>Authentifizierungs-Passphrase:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Verschlüsselung:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Privacy passphrase:</source>
        <translation>Verschlüsselungs-Passphrase:</translation>
    </message>
    <message>
        <source>Remember in the keyring</source>
        <translation>Im Schlüsselbund speichern</translation>
    </message>
    <message>
        <source>The SNMPv3 user name cannot contain "%1".</source>
        <translation>Der SNMPv3-Benutzername darf „%1“ nicht enthalten.</translation>
    </message>
    <message>
        <source>Get Printer Info asks the printer at %2 as the SNMPv3 user %1. Enter the user's passphrases.</source>
        <translation>„Druckerinformationen abrufen“ fragt den Drucker unter %2 als SNMPv3-Benutzer %1 ab. Geben Sie die Passphrasen des Benutzers ein.</translation>
    </message>
    <message>
        <source>At least %1 characters</source>
        <translation>Mindestens %1 Zeichen</translation>
    </message>
    <message>
        <source>The passphrases could not be kept in the keyring: no desktop secret store answered. They are used until the window closes.</source>
        <translation>Die Passphrasen konnten nicht im Schlüsselbund gespeichert werden: Kein Schlüsselspeicher des Desktops hat geantwortet. Sie werden verwendet, bis das Fenster geschlossen wird.</translation>
    </message>
</context>
</TS>

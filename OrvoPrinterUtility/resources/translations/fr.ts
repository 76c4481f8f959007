<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Localizable</name>
    <message>
        <source> - Utility</source>
        <translation> - Utilitaire</translation>
    </message>
    <message>
        <source>Orvo Printer Utility</source>
        <translation>Utilitaire d'imprimante Orvo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>IntroText</source>
        <translation>Configurez pour cette file d'impression les dossiers partagés, les formulaires, les définitions de zones de code-barres et les profils couleur de l'imprimante.</translation>
    </message>
    <message>
        <source>SNMP Community Name</source>
        <translation>Nom de communauté SNMP</translation>
    </message>
    <message>
        <source>Wake On LAN</source>
        <translation>Wake on LAN</translation>
    </message>
    <message>
        <source>MAC Address of the Printer:</source>
        <translation>Adresse &amp;MAC de l'imprimante :</translation>
    </message>
    <message>
        <source>MAC address, byte %1</source>
        <translation>Adresse MAC, octet %1</translation>
    </message>
    <message>
        <source>Connect to Another Network</source>
        <translation>Connexion à un autre réseau</translation>
    </message>
    <message>
        <source>IP address of the printer:</source>
        <translation>Adresse &amp;IP de l'imprimante :</translation>
    </message>
    <message>
        <source>Get Printer Info</source>
        <translation>Obtenir les infos de l'imprimante</translation>
    </message>
    <message>
        <source>Getting information from printer...</source>
        <translation>Obtention des informations de l'imprimante...</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Barcode area definition</source>
        <translation>Définition de zone de code-barres</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>Profil couleur</translation>
    </message>
    <message>
        <source>Shared folder in the printer</source>
        <translation>Dossier partagé de l'imprimante</translation>
    </message>
    <message>
        <source>Register folder</source>
        <translation>Dossier enregistré</translation>
    </message>
    <message>
        <source>Add -&gt;</source>
        <translation>Ajouter -&gt;</translation>
    </message>
    <message>
        <source>&lt;- Delete</source>
        <translation>&lt;- Supprimer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Use Personal folder</source>
        <translation>Utiliser le dossier personnel</translation>
    </message>
    <message>
        <source>Failed to obtain information.</source>
        <translation>Impossible d'obtenir les informations.</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TOO_LONG</source>
        <translation>Ces réglages sont trop longs pour que le serveur d'impression les transmette au pilote de l'imprimante : ils ne peuvent pas être enregistrés. Raccourcissez ces listes, puis cliquez de nouveau sur OK :</translation>
    </message>
    <message>
        <source>The SNMP community name cannot contain "%1".</source>
        <translation>Le nom de communauté SNMP ne peut pas contenir « %1 ».</translation>
    </message>
    <message>
        <source>The SNMP community name is longer than %1 characters.</source>
        <translation>Le nom de communauté SNMP dépasse %1 caractères.</translation>
    </message>
    <message>
        <source>The IP address of the printer must be an IPv4 or IPv6 address, or a host name of at most %1 characters.</source>
        <translation>L'adresse IP de l'imprimante doit être une adresse IPv4 ou IPv6, ou un nom d'hôte d'au plus %1 caractères.</translation>
    </message>
    <message>
        <source>The MAC address of the printer is incomplete: each of its six bytes needs two hexadecimal digits (0-9, A-F).</source>
        <translation>L'adresse MAC de l'imprimante est incomplète : chacun de ses six octets demande deux chiffres hexadécimaux (0-9, A-F).</translation>
    </message>
    <message>
        <source>Wake On LAN needs the MAC address of the printer. Enter it, or turn Wake On LAN off.</source>
        <translation>Wake on LAN a besoin de l'adresse MAC de l'imprimante. Saisissez-la, ou désactivez Wake on LAN.</translation>
    </message>
    <message>
        <source>The list "%1" holds more than %2 entries.</source>
        <translation>La liste « %1 » contient plus de %2 entrées.</translation>
    </message>
    <message>
        <source>A name in the list "%1" is longer than %2 bytes.</source>
        <translation>Un nom de la liste « %1 » dépasse %2 octets.</translation>
    </message>
    <message>
        <source>"%1" holds a value that cannot be saved.</source>
        <translation>« %1 » contient une valeur qui ne peut pas être enregistrée.</translation>
    </message>
    <message>
        <source>IDS_QUEUE_NOT_SET_UP</source>
        <translation>La file d’attente « %1 » n’est pas configurée pour enregistrer les réglages de l’utilitaire : rien ne peut encore y être enregistré. Choisissez « Configurer… » pour la configurer ; le serveur d’impression peut demander le mot de passe d’un administrateur.</translation>
    </message>
    <message>
        <source>Shared Folder 1</source>
        <translation>Dossier partagé 1</translation>
    </message>
    <message>
        <source>Shared Folder 2</source>
        <translation>Dossier partagé 2</translation>
    </message>
    <message>
        <source>Shared Folder 3</source>
        <translation>Dossier partagé 3</translation>
    </message>
    <message>
        <source>Shared Folder 4</source>
        <translation>Dossier partagé 4</translation>
    </message>
    <message>
        <source>Shared Folder 5</source>
        <translation>Dossier partagé 5</translation>
    </message>
    <message>
        <source>Shared Folder 6</source>
        <translation>Dossier partagé 6</translation>
    </message>
    <message>
        <source>Shared Folder 7</source>
        <translation>Dossier partagé 7</translation>
    </message>
    <message>
        <source>Shared Folder 8</source>
        <translation>Dossier partagé 8</translation>
    </message>
    <message>
        <source>Shared Folder 9</source>
        <translation>Dossier partagé 9</translation>
    </message>
    <message>
        <source>Shared Folder 10</source>
        <translation>Dossier partagé 10</translation>
    </message>
    <message>
        <source>Shared Folder 11</source>
        <translation>Dossier partagé 11</translation>
    </message>
    <message>
        <source>Shared Folder 12</source>
        <translation>Dossier partagé 12</translation>
    </message>
    <message>
        <source>Shared Folder 13</source>
        <translation>Dossier partagé 13</translation>
    </message>
    <message>
        <source>Shared Folder 14</source>
        <translation>Dossier partagé 14</translation>
    </message>
    <message>
        <source>Shared Folder 15</source>
        <translation>Dossier partagé 15</translation>
    </message>
    <message>
        <source>Shared Folder 16</source>
        <translation>Dossier partagé 16</translation>
    </message>
    <message>
        <source>Shared Folder 17</source>
        <translation>Dossier partagé 17</translation>
    </message>
    <message>
        <source>Shared Folder 18</source>
        <translation>Dossier partagé 18</translation>
    </message>
    <message>
        <source>Shared Folder 19</source>
        <translation>Dossier partagé 19</translation>
    </message>
    <message>
        <source>Shared Folder 20</source>
        <translation>Dossier partagé 20</translation>
    </message>
    <message>
        <source>Shared Folder 21</source>
        <translation>Dossier partagé 21</translation>
    </message>
    <message>
        <source>Shared Folder 22</source>
        <translation>Dossier partagé 22</translation>
    </message>
    <message>
        <source>Shared Folder 23</source>
        <translation>Dossier partagé 23</translation>
    </message>
    <message>
        <source>Shared Folder 24</source>
        <translation>Dossier partagé 24</translation>
    </message>
    <message>
        <source>Shared Folder 25</source>
        <translation>Dossier partagé 25</translation>
    </message>
    <message>
        <source>Shared Folder 26</source>
        <translation>Dossier partagé 26</translation>
    </message>
    <message>
        <source>Shared Folder 27</source>
        <translation>Dossier partagé 27</translation>
    </message>
    <message>
        <source>Shared Folder 28</source>
        <translation>Dossier partagé 28</translation>
    </message>
    <message>
        <source>Shared Folder 29</source>
        <translation>Dossier partagé 29</translation>
    </message>
    <message>
        <source>Shared Folder 30</source>
        <translation>Dossier partagé 30</translation>
    </message>
    <message>
        <source>Shared Folder 31</source>
        <translation>Dossier partagé 31</translation>
    </message>
    <message>
        <source>Shared Folder 32</source>
        <translation>Dossier partagé 32</translation>
    </message>
    <message>
        <source>Shared Folder 33</source>
        <translation>Dossier partagé 33</translation>
    </message>
    <message>
        <source>Shared Folder 34</source>
        <translation>Dossier partagé 34</translation>
    </message>
    <message>
        <source>Shared Folder 35</source>
        <translation>Dossier partagé 35</translation>
    </message>
    <message>
        <source>Shared Folder 36</source>
        <translation>Dossier partagé 36</translation>
    </message>
    <message>
        <source>Shared Folder 37</source>
        <translation>Dossier partagé 37</translation>
    </message>
    <message>
        <source>Shared Folder 38</source>
        <translation>Dossier partagé 38</translation>
    </message>
    <message>
        <source>Shared Folder 39</source>
        <translation>Dossier partagé 39</translation>
    </message>
    <message>
        <source>Shared Folder 40</source>
        <translation>Dossier partagé 40</translation>
    </message>
    <message>
        <source>Shared Folder 41</source>
        <translation>Dossier partagé 41</translation>
    </message>
    <message>
        <source>Shared Folder 42</source>
        <translation>Dossier partagé 42</translation>
    </message>
    <message>
        <source>Shared Folder 43</source>
        <translation>Dossier partagé 43</translation>
    </message>
    <message>
        <source>Shared Folder 44</source>
        <translation>Dossier partagé 44</translation>
    </message>
    <message>
        <source>Shared Folder 45</source>
        <translation>Dossier partagé 45</translation>
    </message>
    <message>
        <source>Shared Folder 46</source>
        <translation>Dossier partagé 46</translation>
    </message>
    <message>
        <source>Shared Folder 47</source>
        <translation>Dossier partagé 47</translation>
    </message>
    <message>
        <source>Shared Folder 48</source>
        <translation>Dossier partagé 48</translation>
    </message>
    <message>
        <source>Shared Folder 49</source>
        <translation>Dossier partagé 49</translation>
    </message>
    <message>
        <source>Shared Folder 50</source>
        <translation>Dossier partagé 50</translation>
    </message>
    <message>
        <source>Shared Folder 51</source>
        <translation>Dossier partagé 51</translation>
    </message>
    <message>
        <source>Shared Folder 52</source>
        <translation>Dossier partagé 52</translation>
    </message>
    <message>
        <source>Shared Folder 53</source>
        <translation>Dossier partagé 53</translation>
    </message>
    <message>
        <source>Shared Folder 54</source>
        <translation>Dossier partagé 54</translation>
    </message>
    <message>
        <source>Shared Folder 55</source>
        <translation>Dossier partagé 55</translation>
    </message>
    <message>
        <source>Shared Folder 56</source>
        <translation>Dossier partagé 56</translation>
    </message>
    <message>
        <source>Shared Folder 57</source>
        <translation>Dossier partagé 57</translation>
    </message>
    <message>
        <source>Shared Folder 58</source>
        <translation>Dossier partagé 58</translation>
    </message>
    <message>
        <source>Shared Folder 59</source>
        <translation>Dossier partagé 59</translation>
    </message>
    <message>
        <source>Shared Folder 60</source>
        <translation>Dossier partagé 60</translation>
    </message>
    <message>
        <source>Shared Folder 61</source>
        <translation>Dossier partagé 61</translation>
    </message>
    <message>
        <source>Shared Folder 62</source>
        <translation>Dossier partagé 62</translation>
    </message>
    <message>
        <source>Shared Folder 63</source>
        <translation>Dossier partagé 63</translation>
    </message>
    <message>
        <source>Shared Folder 64</source>
        <translation>Dossier partagé 64</translation>
    </message>
    <message>
        <source>Shared Folder 65</source>
        <translation>Dossier partagé 65</translation>
    </message>
    <message>
        <source>Shared Folder 66</source>
        <translation>Dossier partagé 66</translation>
    </message>
    <message>
        <source>Shared Folder 67</source>
        <translation>Dossier partagé 67</translation>
    </message>
    <message>
        <source>Shared Folder 68</source>
        <translation>Dossier partagé 68</translation>
    </message>
    <message>
        <source>Shared Folder 69</source>
        <translation>Dossier partagé 69</translation>
    </message>
    <message>
        <source>Shared Folder 70</source>
        <translation>Dossier partagé 70</translation>
    </message>
    <message>
        <source>Shared Folder 71</source>
        <translation>Dossier partagé 71</translation>
    </message>
    <message>
        <source>Shared Folder 72</source>
        <translation>Dossier partagé 72</translation>
    </message>
    <message>
        <source>Shared Folder 73</source>
        <translation>Dossier partagé 73</translation>
    </message>
    <message>
        <source>Shared Folder 74</source>
        <translation>Dossier partagé 74</translation>
    </message>
    <message>
        <source>Shared Folder 75</source>
        <translation>Dossier partagé 75</translation>
    </message>
    <message>
        <source>Shared Folder 76</source>
        <translation>Dossier partagé 76</translation>
    </message>
    <message>
        <source>Shared Folder 77</source>
        <translation>Dossier partagé 77</translation>
    </message>
    <message>
        <source>Shared Folder 78</source>
        <translation>Dossier partagé 78</translation>
    </message>
    <message>
        <source>Shared Folder 79</source>
        <translation>Dossier partagé 79</translation>
    </message>
    <message>
        <source>Shared Folder 80</source>
        <translation>Dossier partagé 80</translation>
    </message>
    <message>
        <source>Shared Folder 81</source>
        <translation>Dossier partagé 81</translation>
    </message>
    <message>
        <source>Shared Folder 82</source>
        <translation>Dossier partagé 82</translation>
    </message>
    <message>
        <source>Shared Folder 83</source>
        <translation>Dossier partagé 83</translation>
    </message>
    <message>
        <source>Shared Folder 84</source>
        <translation>Dossier partagé 84</translation>
    </message>
    <message>
        <source>Shared Folder 85</source>
        <translation>Dossier partagé 85</translation>
    </message>
    <message>
        <source>Shared Folder 86</source>
        <translation>Dossier partagé 86</translation>
    </message>
    <message>
        <source>Shared Folder 87</source>
        <translation>Dossier partagé 87</translation>
    </message>
    <message>
        <source>Shared Folder 88</source>
        <translation>Dossier partagé 88</translation>
    </message>
    <message>
        <source>Shared Folder 89</source>
        <translation>Dossier partagé 89</translation>
    </message>
    <message>
        <source>Shared Folder 90</source>
        <translation>Dossier partagé 90</translation>
    </message>
    <message>
        <source>Shared Folder 91</source>
        <translation>Dossier partagé 91</translation>
    </message>
    <message>
        <source>Shared Folder 92</source>
        <translation>Dossier partagé 92</translation>
    </message>
    <message>
        <source>Shared Folder 93</source>
        <translation>Dossier partagé 93</translation>
    </message>
    <message>
        <source>Shared Folder 94</source>
        <translation>Dossier partagé 94</translation>
    </message>
    <message>
        <source>Shared Folder 95</source>
        <translation>Dossier partagé 95</translation>
    </message>
    <message>
        <source>Shared Folder 96</source>
        <translation>Dossier partagé 96</translation>
    </message>
    <message>
        <source>Shared Folder 97</source>
        <translation>Dossier partagé 97</translation>
    </message>
    <message>
        <source>Shared Folder 98</source>
        <translation>Dossier partagé 98</translation>
    </message>
    <message>
        <source>Shared Folder 99</source>
        <translation>Dossier partagé 99</translation>
    </message>
    <message>
        <source>Shared Folder 100</source>
        <translation>Dossier partagé 100</translation>
    </message>
    <message>
        <source>Choose a Print Queue</source>
        <translation>Choisir une file d&apos;impression</translation>
    </message>
    <message>
        <source>Choose the print queue whose printer settings you want to change.</source>
        <translation>Choisissez la file d&apos;impression dont vous voulez modifier les réglages d&apos;imprimante.</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtrer :</translation>
    </message>
    <message>
        <source>Name, description, make or model</source>
        <translation>Nom, description, fabricant ou modèle</translation>
    </message>
    <message>
        <source>Print queues</source>
        <translation>Files d&apos;impression</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Make and Model</source>
        <translation>Fabricant et modèle</translation>
    </message>
    <message>
        <source>Utility</source>
        <translation>Utilitaire</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Configurée</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>Non configurée</translation>
    </message>
    <message>
        <source>Damaged: repair it</source>
        <translation>Endommagée : à réparer</translation>
    </message>
    <message>
        <source>Asking the print server for its queues...</source>
        <translation>Interrogation du serveur d&apos;impression sur ses files...</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached. Check that it is running, then try again.</source>
        <translation>Le serveur d&apos;impression %1 est injoignable. Vérifiez qu&apos;il fonctionne, puis réessayez.</translation>
    </message>
    <message>
        <source>The print server %1 has no print queues. Add a printer, then try again.</source>
        <translation>Le serveur d&apos;impression %1 n&apos;a aucune file d&apos;impression. Ajoutez une imprimante, puis réessayez.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Password Required</source>
        <translation>Mot de passe requis</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password to change the queue &quot;%2&quot;.</source>
        <translation>Le serveur d&apos;impression %1 demande un nom d&apos;utilisateur et un mot de passe pour modifier la file « %2 ».</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password.</source>
        <translation>Le serveur d&apos;impression %1 demande un nom d&apos;utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The user name or password was not accepted. Try again.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe a été refusé. Réessayez.</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>Nom d&apos;&amp;utilisateur :</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Mot de &amp;passe :</translation>
    </message>
    <message>
        <source>Loading settings...</source>
        <translation>Chargement des réglages...</translation>
    </message>
    <message>
        <source>Saving settings...</source>
        <translation>Enregistrement des réglages...</translation>
    </message>
    <message>
        <source>Setting up the queue...</source>
        <translation>Configuration de la file d’attente...</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Configurer…</translation>
    </message>
    <message>
        <source>The print server %1 has no print queue "%2".</source>
        <translation>Le serveur d’impression %1 n’a pas de file d’attente « %2 ».</translation>
    </message>
    <message>
        <source>The print queue "%1" has no PPD, so it keeps no printer settings.</source>
        <translation>La file d’attente « %1 » n’a pas de fichier PPD et ne conserve donc aucun réglage d’imprimante.</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" cannot be read, so its settings cannot be shown or saved.</source>
        <translation>Le fichier PPD de la file d’attente « %1 » est illisible : ses réglages ne peuvent être ni affichés ni enregistrés.</translation>
    </message>
    <message>
        <source>The print queue "%1" was not set up: the print server did not accept the user name and password.</source>
        <translation>La file d’attente « %1 » n’a pas été configurée : le serveur d’impression n’a pas accepté le nom d’utilisateur et le mot de passe.</translation>
    </message>
    <message>
        <source>The print server %1 lacks the utility's driver filter, so its queues cannot be set up. Install the utility on the print server first.</source>
        <translation>Le filtre de pilote de l’utilitaire manque sur le serveur d’impression %1 : ses files d’attente ne peuvent pas être configurées. Installez d’abord l’utilitaire sur le serveur d’impression.</translation>
    </message>
    <message>
        <source>You may not change this queue's settings: the print queue "%1" names who may save them. They are shown read-only.</source>
        <translation>Vous ne pouvez pas modifier les réglages de cette file : la file d’impression « %1 » désigne qui peut les enregistrer. Ils sont affichés en lecture seule.</translation>
    </message>
    <message>
        <source>The print queue "%1" could not be set up: %2</source>
        <translation>La file d’attente « %1 » n’a pas pu être configurée : %2</translation>
    </message>
    <message>
        <source>The print server refused the settings (%1). Nothing was saved.</source>
        <translation>Le serveur d’impression a refusé les réglages (%1). Rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>The print server stopped answering while the settings were saved. Whether they arrived shows when the window is opened again.</source>
        <translation>Le serveur d’impression a cessé de répondre pendant l’enregistrement. Vous verrez si les réglages sont arrivés en rouvrant la fenêtre.</translation>
    </message>
    <message>
        <source>The print server ended update job %1 before it stored the settings, so nothing was saved. Check the print queue on the server, then try again.</source>
        <translation>Le serveur d’impression a arrêté la tâche de mise à jour %1 avant qu’elle n’enregistre les réglages : rien n’a été enregistré. Vérifiez la file d’attente sur le serveur, puis réessayez.</translation>
    </message>
    <message>
        <source>Update job %1 did not end in time; the print queue may be paused. The settings are stored when the queue runs again, unless the job is cancelled.</source>
        <translation>La tâche de mise à jour %1 ne s’est pas terminée à temps ; la file d’attente est peut-être en pause. Les réglages seront enregistrés à sa reprise, sauf si la tâche est annulée.</translation>
    </message>
    <message>
        <source>Update job %1 ended, but the queue's PPD does not hold every setting (%2). Try again.</source>
        <translation>La tâche de mise à jour %1 est terminée, mais le fichier PPD de la file d’attente ne contient pas tous les réglages (%2). Réessayez.</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" was damaged while the settings were stored. Choose "Repair…" to rebuild it, then save.</source>
        <translation>Le fichier PPD de la file d’attente « %1 » a été endommagé pendant l’enregistrement. Choisissez « Réparer… » pour le reconstruire, puis enregistrez.</translation>
    </message>
    <message>
        <source>The settings were sent, but the queue's PPD could not be read back to check them. Open the window again to see what is stored.</source>
        <translation>Les réglages ont été envoyés, mais le fichier PPD de la file d’attente n’a pas pu être relu pour les vérifier. Rouvrez la fenêtre pour voir ce qui est enregistré.</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Réparer…</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" is damaged, so its settings cannot be shown or saved. Choose "Repair…" to rebuild it from the queue's driver with the settings it still holds.</source>
        <translation>Le fichier PPD de la file d’attente « %1 » est endommagé : ses réglages ne peuvent être ni affichés ni enregistrés. Choisissez « Réparer… » pour le reconstruire à partir du pilote de la file, avec les réglages qu’il contient encore.</translation>
    </message>
    <message>
        <source>The print server stopped answering, so whether the print queue "%1" was changed is not known. Try again once the server answers: only what is not done yet is done again.</source>
        <translation>Le serveur d’impression ne répond plus : on ne sait pas si la file d’attente « %1 » a été modifiée. Réessayez quand le serveur répond : seul ce qui n’est pas encore fait sera refait.</translation>
    </message>
    <message>
        <source>The print server has no driver for "%2", the printer of the queue "%1", so its PPD cannot be rebuilt. A print administrator can give the queue its driver (lpadmin -m), then set it up.</source>
        <translation>Le serveur d’impression n’a pas de pilote pour « %2 », l’imprimante de la file « %1 » : son fichier PPD ne peut pas être reconstruit. Un administrateur d’impression peut donner son pilote à la file (lpadmin -m), puis la configurer.</translation>
    </message>
    <message>
        <source>Update job %1 ended, then a later save to this print queue (update job %2) replaced its settings. Open the window again to see what is stored.</source>
        <translation>La tâche de mise à jour %1 s’est terminée, puis un enregistrement ultérieur dans cette file d’attente (tâche de mise à jour %2) a remplacé ses réglages. Rouvrez la fenêtre pour voir ce qui est enregistré.</translation>
    </message>
    <message>
        <source>Discard the changes to the settings?</source>
        <translation>Abandonner les modifications des réglages ?</translation>
    </message>
    <message>
        <source>They were not saved to the print queue.</source>
        <translation>Elles n’ont pas été enregistrées dans la file d’impression.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>It may hold the letters A-Z and a-z, the digits 0-9 and these characters: %1</source>
        <translation>Il peut contenir les lettres A-Z et a-z, les chiffres 0-9 et ces caractères : %1</translation>
    </message>
    <message>
        <source>The IP address of the printer is empty. Enter it, then try again.</source>
        <translation>L’adresse IP de l’imprimante est vide. Saisissez-la, puis réessayez.</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMP community name may be wrong.</source>
        <translation>L’imprimante à l’adresse %1 n’a pas répondu à la demande de %2. L’adresse IP ou le nom de communauté SNMP est peut-être erroné.</translation>
    </message>
    <message>
        <source>The printer at %1 answered with an error when asked for %2. It may not keep this information.</source>
        <translation>L’imprimante à l’adresse %1 a répondu par une erreur à la demande de %2. Elle ne conserve peut-être pas ces informations.</translation>
    </message>
    <message>
        <source>The printer at %1 sent an answer that cannot be read when asked for %2.</source>
        <translation>L’imprimante à l’adresse %1 a envoyé une réponse illisible à la demande de %2.</translation>
    </message>
    <message>
        <source>its MAC address</source>
        <translation>son adresse MAC</translation>
    </message>
    <message>
        <source>its shared folders</source>
        <translation>ses dossiers partagés</translation>
    </message>
    <message>
        <source>its forms</source>
        <translation>ses formulaires</translation>
    </message>
    <message>
        <source>its barcode area definitions</source>
        <translation>ses définitions de zones de code-barres</translation>
    </message>
    <message>
        <source>its color profiles</source>
        <translation>ses profils de couleur</translation>
    </message>
    <message>
        <source>Ask the printer at this IP address for its MAC address, shared folders, forms, barcode area definitions and color profiles.</source>
        <translation>Demander à l’imprimante à cette adresse IP son adresse MAC, ses dossiers partagés, formulaires, définitions de zones de code-barres et profils de couleur.</translation>
    </message>
    <message>
        <source>Ask the printer for this list.</source>
        <translation>Demander cette liste à l’imprimante.</translation>
    </message>
    <message>
        <source>Empty this list. The queue keeps its stored list until you choose OK.</source>
        <translation>Vider cette liste. La file conserve sa liste enregistrée jusqu’à ce que vous choisissiez OK.</translation>
    </message>
    <message>
        <source>Also offer each user's personal folder. The printer allows it when its administrator login mode is on.</source>
        <translation>Proposer aussi le dossier personnel de chaque utilisateur. L’imprimante le permet lorsque son mode de connexion administrateur est activé.</translation>
    </message>
    <message>
        <source>Wake the printer also when it is in another network, behind a router.</source>
        <translation>Réveiller l’imprimante aussi lorsqu’elle se trouve sur un autre réseau, derrière un routeur.</translation>
    </message>
    <message>
        <source>Drop the registered folders?</source>
        <translation>Retirer les dossiers enregistrés ?</translation>
    </message>
    <message>
        <source>The default folders take their place. The queue keeps its stored folders until you choose OK.</source>
        <translation>Les dossiers par défaut les remplacent. La file conserve ses dossiers enregistrés jusqu’à ce que vous choisissiez OK.</translation>
    </message>
    <message>
        <source>No queue matches the filter.</source>
        <translation>Aucune file ne correspond au filtre.</translation>
    </message>
    <message>
        <source>The print queue "%1" is stopped: settings saved now are stored only once it runs again.</source>
        <translation>La file d’impression « %1 » est arrêtée : les réglages enregistrés maintenant ne seront stockés qu’à sa reprise.</translation>
    </message>
    <message>
        <source>No printer address is stored for the queue "%1". It prints to %2.</source>
        <translation>Aucune adresse d’imprimante n’est enregistrée pour la file « %1 ». Elle imprime vers %2.</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Other Server…</source>
        <translation>Autre serveur…</translation>
    </message>
    <message>
        <source>Connect to a Print Server</source>
        <translation>Se connecter à un serveur d’impression</translation>
    </message>
    <message>
        <source>Print server (host or host:port):</source>
        <translation>Serveur d’impression (hôte ou hôte:port) :</translation>
    </message>
    <message>
        <source>"%1" names no print server. Enter a host name or address, with a port if it is not 631.</source>
        <translation>« %1 » ne désigne aucun serveur d’impression. Saisissez un nom d’hôte ou une adresse, avec le port s’il n’est pas 631.</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMPv3 privacy passphrase may be wrong.</source>
        <translation>L’imprimante à l’adresse %1 n’a pas répondu à la demande de %2. L’adresse IP ou la phrase secrète de confidentialité SNMPv3 est peut-être erronée.</translation>
    </message>
    <message>
        <source>The printer at %1 has no SNMPv3 user of this name (asked for %2). Check the user name under SNMP Security.</source>
        <translation>L’imprimante à l’adresse %1 n’a pas d’utilisateur SNMPv3 de ce nom (demande de %2). Vérifiez le nom d’utilisateur dans Sécurité SNMP.</translation>
    </message>
    <message>
        <source>The printer at %1 refused the authentication passphrase of the SNMPv3 user when asked for %2. Enter it again under SNMP Security.</source>
        <translation>L’imprimante à l’adresse %1 a refusé la phrase secrète d’authentification de l’utilisateur SNMPv3 à la demande de %2. Saisissez-la de nouveau dans Sécurité SNMP.</translation>
    </message>
    <message>
        <source>The printer at %1 does not accept the SNMPv3 user with privacy as chosen (asked for %2). Check the privacy protocol under SNMP Security.</source>
        <translation>L’imprimante à l’adresse %1 n’accepte pas l’utilisateur SNMPv3 avec la confidentialité choisie (demande de %2). Vérifiez le protocole de confidentialité dans Sécurité SNMP.</translation>
    </message>
    <message>
        <source>No host is known as "%1". Check the printer's IP address.</source>
        <translation>Aucun hôte n’est connu sous le nom « %1 ». Vérifiez l’adresse IP de l’imprimante.</translation>
    </message>
    <message>
        <source>SNMP Security…</source>
        <translation>Sécurité SNMP…</translation>
    </message>
    <message>
        <source>SNMP v1 with the community name</source>
        <translation>SNMP v1 avec le nom de communauté</translation>
    </message>
    <message>
        <source>SNMPv3 with a user</source>
        <translation>SNMPv3 avec un utilisateur</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d’utilisateur :</translation>
    </message>
    <message>
        <source>Authentication:</source>
        <translation>Authentification :</translation>
    </message>
    <message>
        <source>Authentication passphrase:</source>
        <translation>Phrase secrète d’authentification :</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Confidentialité :</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Privacy passphrase:</source>
        <translation>Phrase secrète de confidentialité :</translation>
    </message>
    <message>
        <source>Remember in the keyring</source>
        <translation>Mémoriser dans le trousseau</translation>
    </message>
    <message>
        <source>The SNMPv3 user name cannot contain "%1".</source>
        <translation>Le nom d’utilisateur SNMPv3 ne peut pas contenir « %1 ».</translation>
    </message>
    <message>
        <source>Get Printer Info asks the printer at %2 as the SNMPv3 user %1. Enter the user's passphrases.</source>
        <translation>« Obtenir les infos de l’imprimante » interroge l’imprimante à l’adresse %2 en tant qu’utilisateur SNMPv3 %1. Saisissez les phrases secrètes de l’utilisateur.</translation>
    </message>
    <message>
        <source>At least %1 characters</source>
        <translation>Au moins %1 caractères</translation>
    </message>
    <message>
        <source>The passphrases could not be kept in the keyring: no desktop secret store answered. They are used until the window closes.</source>
        <translation>Les phrases secrètes n’ont pas pu être conservées dans le trousseau : aucun gestionnaire de secrets du bureau n’a répondu. Elles sont utilisées jusqu’à la fermeture de la fenêtre.</translation>
    </message>
</context>
</TS>

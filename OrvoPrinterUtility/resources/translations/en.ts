<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source> - Utility</source>
        <translation> - Utility</translation>
    </message>
    <message>
        <source>Orvo Printer Utility</source>
        <translation>Orvo Printer Utility</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>IntroText</source>
        <translation>Set up the printer's shared folders, forms, barcode area definitions and color profiles for this printer queue.</translation>
    </message>
    <message>
        <source>SNMP Community Name</source>
        <translation>SNMP Community Name</translation>
    </message>
    <message>
        <source>Wake On LAN</source>
        <translation>Wake On LAN</translation>
    </message>
    <message>
        <source>MAC Address of the Printer:</source>
        <translation>&amp;MAC Address of the Printer:</translation>
    </message>
    <message>
        <source>MAC address, byte %1</source>
        <translation>MAC address, byte %1</translation>
    </message>
    <message>
        <source>Connect to Another Network</source>
        <translation>Connect to Another Network</translation>
    </message>
    <message>
        <source>IP address of the printer:</source>
        <translation>&amp;IP address of the printer:</translation>
    </message>
    <message>
        <source>Get Printer Info</source>
        <translation>Get Printer Info</translation>
    </message>
    <message>
        <source>Getting information from printer...</source>
        <translation>Getting information from printer...</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Barcode area definition</source>
        <translation>Barcode area definition</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>Color profile</translation>
    </message>
    <message>
        <source>Shared folder in the printer</source>
        <translation>Shared folder in the printer</translation>
    </message>
    <message>
        <source>Register folder</source>
        <translation>Register folder</translation>
    </message>
    <message>
        <source>Add -&gt;</source>
        <translation>Add -&gt;</translation>
    </message>
    <message>
        <source>&lt;- Delete</source>
        <translation>&lt;- Delete</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Use Personal folder</source>
        <translation>Use Personal folder</translation>
    </message>
    <message>
        <source>Failed to obtain information.</source>
        <translation>Failed to obtain information.</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TOO_LONG</source>
        <translation>These settings are too long for the print server to pass to the printer driver, so they cannot be saved. Shorten these lists and press OK again:</translation>
    </message>
    <message>
        <source>The SNMP community name cannot contain "%1".</source>
        <translation>The SNMP community name cannot contain "%1".</translation>
    </message>
    <message>
        <source>The SNMP community name is longer than %1 characters.</source>
        <translation>The SNMP community name is longer than %1 characters.</translation>
    </message>
    <message>
        <source>The IP address of the printer must be an IPv4 or IPv6 address, or a host name of at most %1 characters.</source>
        <translation>The IP address of the printer must be an IPv4 or IPv6 address, or a host name of at most %1 characters.</translation>
    </message>
    <message>
        <source>The MAC address of the printer is incomplete: each of its six bytes needs two hexadecimal digits (0-9, A-F).</source>
        <translation>The MAC address of the printer is incomplete: each of its six bytes needs two hexadecimal digits (0-9, A-F).</translation>
    </message>
    <message>
        <source>Wake On LAN needs the MAC address of the printer. Enter it, or turn Wake On LAN off.</source>
        <translation>Wake On LAN needs the MAC address of the printer. Enter it, or turn Wake On LAN off.</translation>
    </message>
    <message>
        <source>The list "%1" holds more than %2 entries.</source>
        <translation>The list "%1" holds more than %2 entries.</translation>
    </message>
    <message>
        <source>A name in the list "%1" is longer than %2 bytes.</source>
        <translation>A name in the list "%1" is longer than %2 bytes.</translation>
    </message>
    <message>
        <source>"%1" holds a value that cannot be saved.</source>
        <translation>"%1" holds a value that cannot be saved.</translation>
    </message>
    <message>
        <source>IDS_QUEUE_NOT_SET_UP</source>
        <translation>The print queue "%1" is not set up to store the utility's settings, so nothing can be saved to it yet. Choose Set Up… to set it up; the print server may ask for an administrator's password.</translation>
    </message>
    <message>
        <source>Shared Folder 1</source>
        <translation>Shared Folder 1</translation>
    </message>
    <message>
        <source>Shared Folder 2</source>
        <translation>Shared Folder 2</translation>
    </message>
    <message>
        <source>Shared Folder 3</source>
        <translation>Shared Folder 3</translation>
    </message>
    <message>
        <source>Shared Folder 4</source>
        <translation>Shared Folder 4</translation>
    </message>
    <message>
        <source>Shared Folder 5</source>
        <translation>Shared Folder 5</translation>
    </message>
    <message>
        <source>Shared Folder 6</source>
        <translation>Shared Folder 6</translation>
    </message>
    <message>
        <source>Shared Folder 7</source>
        <translation>Shared Folder 7</translation>
    </message>
    <message>
        <source>Shared Folder 8</source>
        <translation>Shared Folder 8</translation>
    </message>
    <message>
        <source>Shared Folder 9</source>
        <translation>Shared Folder 9</translation>
    </message>
    <message>
        <source>Shared Folder 10</source>
        <translation>Shared Folder 10</translation>
    </message>
    <message>
        <source>Shared Folder 11</source>
        <translation>Shared Folder 11</translation>
    </message>
    <message>
        <source>Shared Folder 12</source>
        <translation>Shared Folder 12</translation>
    </message>
    <message>
        <source>Shared Folder 13</source>
        <translation>Shared Folder 13</translation>
    </message>
    <message>
        <source>Shared Folder 14</source>
        <translation>Shared Folder 14</translation>
    </message>
    <message>
        <source>Shared Folder 15</source>
        <translation>Shared Folder 15</translation>
    </message>
    <message>
        <source>Shared Folder 16</source>
        <translation>Shared Folder 16</translation>
    </message>
    <message>
        <source>Shared Folder 17</source>
        <translation>Shared Folder 17</translation>
    </message>
    <message>
        <source>Shared Folder 18</source>
        <translation>Shared Folder 18</translation>
    </message>
    <message>
        <source>Shared Folder 19</source>
        <translation>Shared Folder 19</translation>
    </message>
    <message>
        <source>Shared Folder 20</source>
        <translation>Shared Folder 20</translation>
    </message>
    <message>
        <source>Shared Folder 21</source>
        <translation>Shared Folder 21</translation>
    </message>
    <message>
        <source>Shared Folder 22</source>
        <translation>Shared Folder 22</translation>
    </message>
    <message>
        <source>Shared Folder 23</source>
        <translation>Shared Folder 23</translation>
    </message>
    <message>
        <source>Shared Folder 24</source>
        <translation>Shared Folder 24</translation>
    </message>
    <message>
        <source>Shared Folder 25</source>
        <translation>Shared Folder 25</translation>
    </message>
    <message>
        <source>Shared Folder 26</source>
        <translation>Shared Folder 26</translation>
    </message>
    <message>
        <source>Shared Folder 27</source>
        <translation>Shared Folder 27</translation>
    </message>
    <message>
        <source>Shared Folder 28</source>
        <translation>Shared Folder 28</translation>
    </message>
    <message>
        <source>Shared Folder 29</source>
        <translation>Shared Folder 29</translation>
    </message>
    <message>
        <source>Shared Folder 30</source>
        <translation>Shared Folder 30</translation>
    </message>
    <message>
        <source>Shared Folder 31</source>
        <translation>Shared Folder 31</translation>
    </message>
    <message>
        <source>Shared Folder 32</source>
        <translation>Shared Folder 32</translation>
    </message>
    <message>
        <source>Shared Folder 33</source>
        <translation>Shared Folder 33</translation>
    </message>
    <message>
        <source>Shared Folder 34</source>
        <translation>Shared Folder 34</translation>
    </message>
    <message>
        <source>Shared Folder 35</source>
        <translation>Shared Folder 35</translation>
    </message>
    <message>
        <source>Shared Folder 36</source>
        <translation>Shared Folder 36</translation>
    </message>
    <message>
        <source>Shared Folder 37</source>
        <translation>Shared Folder 37</translation>
    </message>
    <message>
        <source>Shared Folder 38</source>
        <translation>Shared Folder 38</translation>
    </message>
    <message>
        <source>Shared Folder 39</source>
        <translation>Shared Folder 39</translation>
    </message>
    <message>
        <source>Shared Folder 40</source>
        <translation>Shared Folder 40</translation>
    </message>
    <message>
        <source>Shared Folder 41</source>
        <translation>Shared Folder 41</translation>
    </message>
    <message>
        <source>Shared Folder 42</source>
        <translation>Shared Folder 42</translation>
    </message>
    <message>
        <source>Shared Folder 43</source>
        <translation>Shared Folder 43</translation>
    </message>
    <message>
        <source>Shared Folder 44</source>
        <translation>Shared Folder 44</translation>
    </message>
    <message>
        <source>Shared Folder 45</source>
        <translation>Shared Folder 45</translation>
    </message>
    <message>
        <source>Shared Folder 46</source>
        <translation>Shared Folder 46</translation>
    </message>
    <message>
        <source>Shared Folder 47</source>
        <translation>Shared Folder 47</translation>
    </message>
    <message>
        <source>Shared Folder 48</source>
        <translation>Shared Folder 48</translation>
    </message>
    <message>
        <source>Shared Folder 49</source>
        <translation>Shared Folder 49</translation>
    </message>
    <message>
        <source>Shared Folder 50</source>
        <translation>Shared Folder 50</translation>
    </message>
    <message>
        <source>Shared Folder 51</source>
        <translation>Shared Folder 51</translation>
    </message>
    <message>
        <source>Shared Folder 52</source>
        <translation>Shared Folder 52</translation>
    </message>
    <message>
        <source>Shared Folder 53</source>
        <translation>Shared Folder 53</translation>
    </message>
    <message>
        <source>Shared Folder 54</source>
        <translation>Shared Folder 54</translation>
    </message>
    <message>
        <source>Shared Folder 55</source>
        <translation>Shared Folder 55</translation>
    </message>
    <message>
        <source>Shared Folder 56</source>
        <translation>Shared Folder 56</translation>
    </message>
    <message>
        <source>Shared Folder 57</source>
        <translation>Shared Folder 57</translation>
    </message>
    <message>
        <source>Shared Folder 58</source>
        <translation>Shared Folder 58</translation>
    </message>
    <message>
        <source>Shared Folder 59</source>
        <translation>Shared Folder 59</translation>
    </message>
    <message>
        <source>Shared Folder 60</source>
        <translation>Shared Folder 60</translation>
    </message>
    <message>
        <source>Shared Folder 61</source>
        <translation>Shared Folder 61</translation>
    </message>
    <message>
        <source>Shared Folder 62</source>
        <translation>Shared Folder 62</translation>
    </message>
    <message>
        <source>Shared Folder 63</source>
        <translation>Shared Folder 63</translation>
    </message>
    <message>
        <source>Shared Folder 64</source>
        <translation>Shared Folder 64</translation>
    </message>
    <message>
        <source>Shared Folder 65</source>
        <translation>Shared Folder 65</translation>
    </message>
    <message>
        <source>Shared Folder 66</source>
        <translation>Shared Folder 66</translation>
    </message>
    <message>
        <source>Shared Folder 67</source>
        <translation>Shared Folder 67</translation>
    </message>
    <message>
        <source>Shared Folder 68</source>
        <translation>Shared Folder 68</translation>
    </message>
    <message>
        <source>Shared Folder 69</source>
        <translation>Shared Folder 69</translation>
    </message>
    <message>
        <source>Shared Folder 70</source>
        <translation>Shared Folder 70</translation>
    </message>
    <message>
        <source>Shared Folder 71</source>
        <translation>Shared Folder 71</translation>
    </message>
    <message>
        <source>Shared Folder 72</source>
        <translation>Shared Folder 72</translation>
    </message>
    <message>
        <source>Shared Folder 73</source>
        <translation>Shared Folder 73</translation>
    </message>
    <message>
        <source>Shared Folder 74</source>
        <translation>Shared Folder 74</translation>
    </message>
    <message>
        <source>Shared Folder 75</source>
        <translation>Shared Folder 75</translation>
    </message>
    <message>
        <source>Shared Folder 76</source>
        <translation>Shared Folder 76</translation>
    </message>
    <message>
        <source>Shared Folder 77</source>
        <translation>Shared Folder 77</translation>
    </message>
    <message>
        <source>Shared Folder 78</source>
        <translation>Shared Folder 78</translation>
    </message>
    <message>
        <source>Shared Folder 79</source>
        <translation>Shared Folder 79</translation>
    </message>
    <message>
        <source>Shared Folder 80</source>
        <translation>Shared Folder 80</translation>
    </message>
    <message>
        <source>Shared Folder 81</source>
        <translation>Shared Folder 81</translation>
    </message>
    <message>
        <source>Shared Folder 82</source>
        <translation>Shared Folder 82</translation>
    </message>
    <message>
        <source>Shared Folder 83</source>
        <translation>Shared Folder 83</translation>
    </message>
    <message>
        <source>Shared Folder 84</source>
        <translation>Shared Folder 84</translation>
    </message>
    <message>
        <source>Shared Folder 85</source>
        <translation>Shared Folder 85</translation>
    </message>
    <message>
        <source>Shared Folder 86</source>
        <translation>Shared Folder 86</translation>
    </message>
    <message>
        <source>Shared Folder 87</source>
        <translation>Shared Folder 87</translation>
    </message>
    <message>
        <source>Shared Folder 88</source>
        <translation>Shared Folder 88</translation>
    </message>
    <message>
        <source>Shared Folder 89</source>
        <translation>Shared Folder 89</translation>
    </message>
    <message>
        <source>Shared Folder 90</source>
        <translation>Shared Folder 90</translation>
    </message>
    <message>
        <source>Shared Folder 91</source>
        <translation>Shared Folder 91</translation>
    </message>
    <message>
        <source>Shared Folder 92</source>
        <translation>Shared Folder 92</translation>
    </message>
    <message>
        <source>Shared Folder 93</source>
        <translation>Shared Folder 93</translation>
    </message>
    <message>
        <source>Shared Folder 94</source>
        <translation>Shared Folder 94</translation>
    </message>
    <message>
        <source>Shared Folder 95</source>
        <translation>Shared Folder 95</translation>
    </message>
    <message>
        <source>Shared Folder 96</source>
        <translation>Shared Folder 96</translation>
    </message>
    <message>
        <source>Shared Folder 97</source>
        <translation>Shared Folder 97</translation>
    </message>
    <message>
        <source>Shared Folder 98</source>
        <translation>Shared Folder 98</translation>
    </message>
    <message>
        <source>Shared Folder 99</source>
        <translation>Shared Folder 99</translation>
    </message>
    <message>
        <source>Shared Folder 100</source>
        <translation>Shared Folder 100</translation>
    </message>
    <message>
        <source>Choose a Print Queue</source>
        <translation>Choose a Print Queue</translation>
    </message>
    <message>
        <source>Choose the print queue whose printer settings you want to change.</source>
        <translation>Choose the print queue whose printer settings you want to change.</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Name, description, make or model</source>
        <translation>Name, description, make or model</translation>
    </message>
    <message>
        <source>Print queues</source>
        <translation>Print queues</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Queue</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Make and Model</source>
        <translation>Make and Model</translation>
    </message>
    <message>
        <source>Utility</source>
        <translation>Utility</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Set up</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>Not set up</translation>
    </message>
    <message>
        <source>Damaged: repair it</source>
        <translation>Damaged: repair it</translation>
    </message>
    <message>
        <source>Asking the print server for its queues...</source>
        <translation>Asking the print server for its queues...</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached. Check that it is running, then try again.</source>
        <translation>The print server %1 cannot be reached. Check that it is running, then try again.</translation>
    </message>
    <message>
        <source>The print server %1 has no print queues. Add a printer, then try again.</source>
        <translation>The print server %1 has no print queues. Add a printer, then try again.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Password Required</source>
        <translation>Password Required</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password to change the queue &quot;%2&quot;.</source>
        <translation>The print server %1 asks for a user name and password to change the queue &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password.</source>
        <translation>The print server %1 asks for a user name and password.</translation>
    </message>
    <message>
        <source>The user name or password was not accepted. Try again.</source>
        <translation>The user name or password was not accepted. Try again.</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;User name:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>Loading settings...</source>
        <translation>Loading settings...</translation>
    </message>
    <message>
        <source>Saving settings...</source>
        <translation>Saving settings...</translation>
    </message>
    <message>
        <source>Setting up the queue...</source>
        <translation>Setting up the queue...</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Set Up…</translation>
    </message>
    <message>
        <source>The print server %1 has no print queue "%2".</source>
        <translation>The print server %1 has no print queue "%2".</translation>
    </message>
    <message>
        <source>The print queue "%1" has no PPD, so it keeps no printer settings.</source>
        <translation>The print queue "%1" has no PPD, so it keeps no printer settings.</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" cannot be read, so its settings cannot be shown or saved.</source>
        <translation>The PPD of the print queue "%1" cannot be read, so its settings cannot be shown or saved.</translation>
    </message>
    <message>
        <source>The print queue "%1" was not set up: the print server did not accept the user name and password.</source>
        <translation>The print queue "%1" was not set up: the print server did not accept the user name and password.</translation>
    </message>
    <message>
        <source>The print server %1 lacks the utility's driver filter, so its queues cannot be set up. Install the utility on the print server first.</source>
        <translation>The print server %1 lacks the utility's driver filter, so its queues cannot be set up. Install the utility on the print server first.</translation>
    </message>
    <message>
        <source>You may not change this queue's settings: the print queue "%1" names who may save them. They are shown read-only.</source>
        <translation>You may not change this queue's settings: the print queue "%1" names who may save them. They are shown read-only.</translation>
    </message>
    <message>
        <source>The print queue "%1" could not be set up: %2</source>
        <translation>The print queue "%1" could not be set up: %2</translation>
    </message>
    <message>
        <source>The print server refused the settings (%1). Nothing was saved.</source>
        <translation>The print server refused the settings (%1). Nothing was saved.</translation>
    </message>
    <message>
        <source>The print server stopped answering while the settings were saved. Whether they arrived shows when the window is opened again.</source>
        <translation>The print server stopped answering while the settings were saved. Whether they arrived shows when the window is opened again.</translation>
    </message>
    <message>
        <source>The print server ended update job %1 before it stored the settings, so nothing was saved. Check the print queue on the server, then try again.</source>
        <translation>The print server ended update job %1 before it stored the settings, so nothing was saved. Check the print queue on the server, then try again.</translation>
    </message>
    <message>
        <source>Update job %1 did not end in time; the print queue may be paused. The settings are stored when the queue runs again, unless the job is cancelled.</source>
        <translation>Update job %1 did not end in time; the print queue may be paused. The settings are stored when the queue runs again, unless the job is cancelled.</translation>
    </message>
    <message>
        <source>Update job %1 ended, but the queue's PPD does not hold every setting (%2). Try again.</source>
        <translation>Update job %1 ended, but the queue's PPD does not hold every setting (%2). Try again.</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" was damaged while the settings were stored. Choose "Repair…" to rebuild it, then save.</source>
        <translation>The PPD of the print queue "%1" was damaged while the settings were stored. Choose "Repair…" to rebuild it, then save.</translation>
    </message>
    <message>
        <source>The settings were sent, but the queue's PPD could not be read back to check them. Open the window again to see what is stored.</source>
        <translation>The settings were sent, but the queue's PPD could not be read back to check them. Open the window again to see what is stored.</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Repair…</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" is damaged, so its settings cannot be shown or saved. Choose "Repair…" to rebuild it from the queue's driver with the settings it still holds.</source>
        <translation>The PPD of the print queue "%1" is damaged, so its settings cannot be shown or saved. Choose "Repair…" to rebuild it from the queue's driver with the settings it still holds.</translation>
    </message>
    <message>
        <source>The print server stopped answering, so whether the print queue "%1" was changed is not known. Try again once the server answers: only what is not done yet is done again.</source>
        <translation>The print server stopped answering, so whether the print queue "%1" was changed is not known. Try again once the server answers: only what is not done yet is done again.</translation>
    </message>
    <message>
        <source>The print server has no driver for "%2", the printer of the queue "%1", so its PPD cannot be rebuilt. A print administrator can give the queue its driver (lpadmin -m), then set it up.</source>
        <translation>The print server has no driver for "%2", the printer of the queue "%1", so its PPD cannot be rebuilt. A print administrator can give the queue its driver (lpadmin -m), then set it up.</translation>
    </message>
    <message>
        <source>Update job %1 ended, then a later save to this print queue (update job %2) replaced its settings. Open the window again to see what is stored.</source>
        <translation>Update job %1 ended, then a later save to this print queue (update job %2) replaced its settings. Open the window again to see what is stored.</translation>
    </message>
    <message>
        <source>Discard the changes to the settings?</source>
        <translation>Discard the changes to the settings?</translation>
    </message>
    <message>
        <source>They were not saved to the print queue.</source>
        <translation>They were not saved to the print queue.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>It may hold the letters A-Z and a-z, the digits 0-9 and these characters: %1</source>
        <translation>It may hold the letters A-Z and a-z, the digits 0-9 and these characters: %1</translation>
    </message>
    <message>
        <source>The IP address of the printer is empty. Enter it, then try again.</source>
        <translation>The IP address of the printer is empty. Enter it, then try again.</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMP community name may be wrong.</source>
        <translation>The printer at %1 did not answer when asked for %2. The IP address or the SNMP community name may be wrong.</translation>
    </message>
    <message>
        <source>The printer at %1 answered with an error when asked for %2. It may not keep this information.</source>
        <translation>The printer at %1 answered with an error when asked for %2. It may not keep this information.</translation>
    </message>
    <message>
        <source>The printer at %1 sent an answer that cannot be read when asked for %2.</source>
        <translation>The printer at %1 sent an answer that cannot be read when asked for %2.</translation>
    </message>
    <message>
        <source>its MAC address</source>
        <translation>its MAC address</translation>
    </message>
    <message>
        <source>its shared folders</source>
        <translation>its shared folders</translation>
    </message>
    <message>
        <source>its forms</source>
        <translation>its forms</translation>
    </message>
    <message>
        <source>its barcode area definitions</source>
        <translation>its barcode area definitions</translation>
    </message>
    <message>
        <source>its color profiles</source>
        <translation>its color profiles</translation>
    </message>
    <message>
        <source>Ask the printer at this IP address for its MAC address, shared folders, forms, barcode area definitions and color profiles.</source>
        <translation>Ask the printer at this IP address for its MAC address, shared folders, forms, barcode area definitions and color profiles.</translation>
    </message>
    <message>
        <source>Ask the printer for this list.</source>
        <translation>Ask the printer for this list.</translation>
    </message>
    <message>
        <source>Empty this list. The queue keeps its stored list until you choose OK.</source>
        <translation>Empty this list. The queue keeps its stored list until you choose OK.</translation>
    </message>
    <message>
        <source>Also offer each user's personal folder. The printer allows it when its administrator login mode is on.</source>
        <translation>Also offer each user's personal folder. The printer allows it when its administrator login mode is on.</translation>
    </message>
    <message>
        <source>Wake the printer also when it is in another network, behind a router.</source>
        <translation>Wake the printer also when it is in another network, behind a router.</translation>
    </message>
    <message>
        <source>Drop the registered folders?</source>
        <translation>Drop the registered folders?</translation>
    </message>
    <message>
        <source>The default folders take their place. The queue keeps its stored folders until you choose OK.</source>
        <translation>The default folders take their place. The queue keeps its stored folders until you choose OK.</translation>
    </message>
    <message>
        <source>No queue matches the filter.</source>
        <translation>No queue matches the filter.</translation>
    </message>
    <message>
        <source>The print queue "%1" is stopped: settings saved now are stored only once it runs again.</source>
        <translation>The print queue "%1" is stopped: settings saved now are stored only once it runs again.</translation>
    </message>
    <message>
        <source>No printer address is stored for the queue "%1". It prints to %2.</source>
        <translation>No printer address is stored for the queue "%1". It prints to %2.</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Use</translation>
    </message>
    <message>
        <source>Other Server…</source>
        <translation>Other Server…</translation>
    </message>
    <message>
        <source>Connect to a Print Server</source>
        <translation>Connect to a Print Server</translation>
    </message>
    <message>
        <source>Print server (host or host:port):</source>
        <translation>Print server (host or host:port):</translation>
    </message>
    <message>
        <source>"%1" names no print server. Enter a host name or address, with a port if it is not 631.</source>
        <translation>"%1" names no print server. Enter a host name or address, with a port if it is not 631.</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMPv3 privacy passphrase may be wrong.</source>
        <translation>The printer at %1 did not answer when asked for %2. The IP address or the SNMPv3 privacy passphrase may be wrong.</translation>
    </message>
    <message>
        <source>The printer at %1 has no SNMPv3 user of this name (asked for %2). Check the user name under SNMP Security.</source>
        <translation>The printer at %1 has no SNMPv3 user of this name (asked for %2). Check the user name under SNMP Security.</translation>
    </message>
    <message>
        <source>The printer at %1 refused the authentication passphrase of the SNMPv3 user when asked for %2. Enter it again under SNMP Security.</source>
        <translation>The printer at %1 refused the authentication passphrase of the SNMPv3 user when asked for %2. Enter it again under SNMP Security.</translation>
    </message>
    <message>
        <source>The printer at %1 does not accept the SNMPv3 user with privacy as chosen (asked for %2). Check the privacy protocol under SNMP Security.</source>
        <translation>The printer at %1 does not accept the SNMPv3 user with privacy as chosen (asked for %2). Check the privacy protocol under SNMP Security.</translation>
    </message>
    <message>
        <source>No host is known as "%1". Check the printer's IP address.</source>
        <translation>No host is known as "%1". Check the printer's IP address.</translation>
    </message>
    <message>
        <source>SNMP Security…</source>
        <translation>SNMP Security…</translation>
    </message>
    <message>
        <source>SNMP v1 with the community name</source>
        <translation>SNMP v1 with the community name</translation>
    </message>
    <message>
        <source>SNMPv3 with a user</source>
        <translation>SNMPv3 with a user</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>User name:</translation>
    </message>
    <message>
        <source>Authentication:</source>
        <translation>Authentication:</translation>
    </message>
    <message>
        <source>Authentication passphrase:</source>
        <translation>Authentication passphrase:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Privacy:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Privacy passphrase:</source>
        <translation>Privacy passphrase:</translation>
    </message>
    <message>
        <source>Remember in the keyring</source>
        <translation>Remember in the keyring</translation>
    </message>
    <message>
        <source>The SNMPv3 user name cannot contain "%1".</source>
        <translation>The SNMPv3 user name cannot contain "%1".</translation>
    </message>
    <message>
        <source>Get Printer Info asks the printer at %2 as the SNMPv3 user %1. Enter the user's passphrases.</source>
        <translation>Get Printer Info asks the printer at %2 as the SNMPv3 user %1. Enter the user's passphrases.</translation>
    </message>
    <message>
        <source>At least %1 characters</source>
        <translation>At least %1 characters</translation>
    </message>
    <message>
        <source>The passphrases could not be kept in the keyring: no desktop secret store answered. They are used until the window closes.</source>
        <translation>The passphrases could not be kept in the keyring: no desktop secret store answered. They are used until the window closes.</translation>
    </message>
</context>
</TS>

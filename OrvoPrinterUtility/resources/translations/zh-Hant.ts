<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>Localizable</name>
    <message>
        <source> - Utility</source>
        <translation> - 公用程式</translation>
    </message>
    <message>
        <source>Orvo Printer Utility</source>
        <translation>Orvo 印表機公用程式</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>IntroText</source>
        <translation>為此印表機佇列設定印表機的共用資料夾、表單、條碼區域定義與色彩設定檔。</translation>
    </message>
    <message>
        <source>SNMP Community Name</source>
        <translation>SNMP 社群名稱</translation>
    </message>
    <message>
        <source>Wake On LAN</source>
        <translation>網路喚醒</translation>
    </message>
    <message>
        <source>MAC Address of the Printer:</source>
        <translation>印表機的 MAC 位址(&amp;M):</translation>
    </message>
    <message>
        <source>MAC address, byte %1</source>
        <translation>MAC 位址，第 %1 位元組</translation>
    </message>
    <message>
        <source>Connect to Another Network</source>
        <translation>連線到其他網路</translation>
    </message>
    <message>
        <source>IP address of the printer:</source>
        <translation>印表機的 IP 位址(&amp;I):</translation>
    </message>
    <message>
        <source>Get Printer Info</source>
        <translation>取得印表機資訊</translation>
    </message>
    <message>
        <source>Getting information from printer...</source>
        <translation>正在從印表機取得資訊...</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>表單</translation>
    </message>
    <message>
        <source>Barcode area definition</source>
        <translation>條碼區域定義</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>色彩設定檔</translation>
    </message>
    <message>
        <source>Shared folder in the printer</source>
        <translation>印表機中的共用資料夾</translation>
    </message>
    <message>
        <source>Register folder</source>
        <translation>登錄資料夾</translation>
    </message>
    <message>
        <source>Add -&gt;</source>
        <translation>新增 -&gt;</translation>
    </message>
    <message>
        <source>&lt;- Delete</source>
        <translation>&lt;- 刪除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Use Personal folder</source>
        <translation>使用個人資料夾</translation>
    </message>
    <message>
        <source>Failed to obtain information.</source>
        <translation>無法取得資訊。</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TOO_LONG</source>
        <translation>這些設定太長，列印伺服器無法將其傳給印表機驅動程式，因此無法儲存。請縮短以下清單，然後再按一次「確定」：</translation>
    </message>
    <message>
        <source>The SNMP community name cannot contain "%1".</source>
        <translation>SNMP 社群名稱不能包含「%1」。</translation>
    </message>
    <message>
        <source>The SNMP community name is longer than %1 characters.</source>
        <translation>SNMP 社群名稱超過 %1 個字元。</translation>
    </message>
    <message>
        <source>The IP address of the printer must be an IPv4 or IPv6 address, or a host name of at most %1 characters.</source>
        <translation>印表機的 IP 位址必須是 IPv4 或 IPv6 位址，或不超過 %1 個字元的主機名稱。</translation>
    </message>
    <message>
        <source>The MAC address of the printer is incomplete: each of its six bytes needs two hexadecimal digits (0-9, A-F).</source>
        <translation>印表機的 MAC 位址不完整：六個位元組中的每一個都需要兩位十六進位數字 (0-9、A-F)。</translation>
    </message>
    <message>
        <source>Wake On LAN needs the MAC address of the printer. Enter it, or turn Wake On LAN off.</source>
        <translation>網路喚醒需要印表機的 MAC 位址。請輸入該位址，或關閉網路喚醒。</translation>
    </message>
    <message>
        <source>The list "%1" holds more than %2 entries.</source>
        <translation>清單「%1」的項目超過 %2 個。</translation>
    </message>
    <message>
        <source>A name in the list "%1" is longer than %2 bytes.</source>
        <translation>清單「%1」中有名稱超過 %2 位元組。</translation>
    </message>
    <message>
        <source>"%1" holds a value that cannot be saved.</source>
        <translation>「%1」中有無法儲存的值。</translation>
    </message>
    <message>
        <source>IDS_QUEUE_NOT_SET_UP</source>
        <translation>列印佇列「%1」尚未設定為儲存本公用程式的設定，因此目前無法儲存任何內容。請選擇「設定…」進行設定；列印伺服器可能會要求輸入管理員密碼。</translation>
    </message>
    <message>
        <source>Shared Folder 1</source>
        <translation>共用資料夾 1</translation>
    </message>
    <message>
        <source>Shared Folder 2</source>
        <translation>共用資料夾 2</translation>
    </message>
    <message>
        <source>Shared Folder 3</source>
        <translation>共用資料夾 3</translation>
    </message>
    <message>
        <source>Shared Folder 4</source>
        <translation>共用資料夾 4</translation>
    </message>
    <message>
        <source>Shared Folder 5</source>
        <translation>共用資料夾 5</translation>
    </message>
    <message>
        <source>Shared Folder 6</source>
        <translation>共用資料夾 6</translation>
    </message>
    <message>
        <source>Shared Folder 7</source>
        <translation>共用資料夾 7</translation>
    </message>
    <message>
        <source>Shared Folder 8</source>
        <translation>共用資料夾 8</translation>
    </message>
    <message>
        <source>Shared Folder 9</source>
        <translation>共用資料夾 9</translation>
    </message>
    <message>
        <source>Shared Folder 10</source>
        <translation>共用資料夾 10</translation>
    </message>
    <message>
        <source>Shared Folder 11</source>
        <translation>共用資料夾 11</translation>
    </message>
    <message>
        <source>Shared Folder 12</source>
        <translation>共用資料夾 12</translation>
    </message>
    <message>
        <source>Shared Folder 13</source>
        <translation>共用資料夾 13</translation>
    </message>
    <message>
        <source>Shared Folder 14</source>
        <translation>共用資料夾 14</translation>
    </message>
    <message>
        <source>Shared Folder 15</source>
        <translation>共用資料夾 15</translation>
    </message>
    <message>
        <source>Shared Folder 16</source>
        <translation>共用資料夾 16</translation>
    </message>
    <message>
        <source>Shared Folder 17</source>
        <translation>共用資料夾 17</translation>
    </message>
    <message>
        <source>Shared Folder 18</source>
        <translation>共用資料夾 18</translation>
    </message>
    <message>
        <source>Shared Folder 19</source>
        <translation>共用資料夾 19</translation>
    </message>
    <message>
        <source>Shared Folder 20</source>
        <translation>共用資料夾 20</translation>
    </message>
    <message>
        <source>Shared Folder 21</source>
        <translation>共用資料夾 21</translation>
    </message>
    <message>
        <source>Shared Folder 22</source>
        <translation>共用資料夾 22</translation>
    </message>
    <message>
        <source>Shared Folder 23</source>
        <translation>共用資料夾 23</translation>
    </message>
    <message>
        <source>Shared Folder 24</source>
        <translation>共用資料夾 24</translation>
    </message>
    <message>
        <source>Shared Folder 25</source>
        <translation>共用資料夾 25</translation>
    </message>
    <message>
        <source>Shared Folder 26</source>
        <translation>共用資料夾 26</translation>
    </message>
    <message>
        <source>Shared Folder 27</source>
        <translation>共用資料夾 27</translation>
    </message>
    <message>
        <source>Shared Folder 28</source>
        <translation>共用資料夾 28</translation>
    </message>
    <message>
        <source>Shared Folder 29</source>
        <translation>共用資料夾 29</translation>
    </message>
    <message>
        <source>Shared Folder 30</source>
        <translation>共用資料夾 30</translation>
    </message>
    <message>
        <source>Shared Folder 31</source>
        <translation>共用資料夾 31</translation>
    </message>
    <message>
        <source>Shared Folder 32</source>
        <translation>共用資料夾 32</translation>
    </message>
    <message>
        <source>Shared Folder 33</source>
        <translation>共用資料夾 33</translation>
    </message>
    <message>
        <source>Shared Folder 34</source>
        <translation>共用資料夾 34</translation>
    </message>
    <message>
        <source>Shared Folder 35</source>
        <translation>共用資料夾 35</translation>
    </message>
    <message>
        <source>Shared Folder 36</source>
        <translation>共用資料夾 36</translation>
    </message>
    <message>
        <source>Shared Folder 37</source>
        <translation>共用資料夾 37</translation>
    </message>
    <message>
        <source>Shared Folder 38</source>
        <translation>共用資料夾 38</translation>
    </message>
    <message>
        <source>Shared Folder 39</source>
        <translation>共用資料夾 39</translation>
    </message>
    <message>
        <source>Shared Folder 40</source>
        <translation>共用資料夾 40</translation>
    </message>
    <message>
        <source>Shared Folder 41</source>
        <translation>共用資料夾 41</translation>
    </message>
    <message>
        <source>Shared Folder 42</source>
        <translation>共用資料夾 42</translation>
    </message>
    <message>
        <source>Shared Folder 43</source>
        <translation>共用資料夾 43</translation>
    </message>
    <message>
        <source>Shared Folder 44</source>
        <translation>共用資料夾 44</translation>
    </message>
    <message>
        <source>Shared Folder 45</source>
        <translation>共用資料夾 45</translation>
    </message>
    <message>
        <source>Shared Folder 46</source>
        <translation>共用資料夾 46</translation>
    </message>
    <message>
        <source>Shared Folder 47</source>
        <translation>共用資料夾 47</translation>
    </message>
    <message>
        <source>Shared Folder 48</source>
        <translation>共用資料夾 48</translation>
    </message>
    <message>
        <source>Shared Folder 49</source>
        <translation>共用資料夾 49</translation>
    </message>
    <message>
        <source>Shared Folder 50</source>
        <translation>共用資料夾 50</translation>
    </message>
    <message>
        <source>Shared Folder 51</source>
        <translation>共用資料夾 51</translation>
    </message>
    <message>
        <source>Shared Folder 52</source>
        <translation>共用資料夾 52</translation>
    </message>
    <message>
        <source>Shared Folder 53</source>
        <translation>共用資料夾 53</translation>
    </message>
    <message>
        <source>Shared Folder 54</source>
        <translation>共用資料夾 54</translation>
    </message>
    <message>
        <source>Shared Folder 55</source>
        <translation>共用資料夾 55</translation>
    </message>
    <message>
        <source>Shared Folder 56</source>
        <translation>共用資料夾 56</translation>
    </message>
    <message>
        <source>Shared Folder 57</source>
        <translation>共用資料夾 57</translation>
    </message>
    <message>
        <source>Shared Folder 58</source>
        <translation>共用資料夾 58</translation>
    </message>
    <message>
        <source>Shared Folder 59</source>
        <translation>共用資料夾 59</translation>
    </message>
    <message>
        <source>Shared Folder 60</source>
        <translation>共用資料夾 60</translation>
    </message>
    <message>
        <source>Shared Folder 61</source>
        <translation>共用資料夾 61</translation>
    </message>
    <message>
        <source>Shared Folder 62</source>
        <translation>共用資料夾 62</translation>
    </message>
    <message>
        <source>Shared Folder 63</source>
        <translation>共用資料夾 63</translation>
    </message>
    <message>
        <source>Shared Folder 64</source>
        <translation>共用資料夾 64</translation>
    </message>
    <message>
        <source>Shared Folder 65</source>
        <translation>共用資料夾 65</translation>
    </message>
    <message>
        <source>Shared Folder 66</source>
        <translation>共用資料夾 66</translation>
    </message>
    <message>
        <source>Shared Folder 67</source>
        <translation>共用資料夾 67</translation>
    </message>
    <message>
        <source>Shared Folder 68</source>
        <translation>共用資料夾 68</translation>
    </message>
    <message>
        <source>Shared Folder 69</source>
        <translation>共用資料夾 69</translation>
    </message>
    <message>
        <source>Shared Folder 70</source>
        <translation>共用資料夾 70</translation>
    </message>
    <message>
        <source>Shared Folder 71</source>
        <translation>共用資料夾 71</translation>
    </message>
    <message>
        <source>Shared Folder 72</source>
        <translation>共用資料夾 72</translation>
    </message>
    <message>
        <source>Shared Folder 73</source>
        <translation>共用資料夾 73</translation>
    </message>
    <message>
        <source>Shared Folder 74</source>
        <translation>共用資料夾 74</translation>
    </message>
    <message>
        <source>Shared Folder 75</source>
        <translation>共用資料夾 75</translation>
    </message>
    <message>
        <source>Shared Folder 76</source>
        <translation>共用資料夾 76</translation>
    </message>
    <message>
        <source>Shared Folder 77</source>
        <translation>共用資料夾 77</translation>
    </message>
    <message>
        <source>Shared Folder 78</source>
        <translation>共用資料夾 78</translation>
    </message>
    <message>
        <source>Shared Folder 79</source>
        <translation>共用資料夾 79</translation>
    </message>
    <message>
        <source>Shared Folder 80</source>
        <translation>共用資料夾 80</translation>
    </message>
    <message>
        <source>Shared Folder 81</source>
        <translation>共用資料夾 81</translation>
    </message>
    <message>
        <source>Shared Folder 82</source>
        <translation>共用資料夾 82</translation>
    </message>
    <message>
        <source>Shared Folder 83</source>
        <translation>共用資料夾 83</translation>
    </message>
    <message>
        <source>Shared Folder 84</source>
        <translation>共用資料夾 84</translation>
    </message>
    <message>
        <source>Shared Folder 85</source>
        <translation>共用資料夾 85</translation>
    </message>
    <message>
        <source>Shared Folder 86</source>
        <translation>共用資料夾 86</translation>
    </message>
    <message>
        <source>Shared Folder 87</source>
        <translation>共用資料夾 87</translation>
    </message>
    <message>
        <source>Shared Folder 88</source>
        <translation>共用資料夾 88</translation>
    </message>
    <message>
        <source>Shared Folder 89</source>
        <translation>共用資料夾 89</translation>
    </message>
    <message>
        <source>Shared Folder 90</source>
        <translation>共用資料夾 90</translation>
    </message>
    <message>
        <source>Shared Folder 91</source>
        <translation>共用資料夾 91</translation>
    </message>
    <message>
        <source>Shared Folder 92</source>
        <translation>共用資料夾 92</translation>
    </message>
    <message>
        <source>Shared Folder 93</source>
        <translation>共用資料夾 93</translation>
    </message>
    <message>
        <source>Shared Folder 94</source>
        <translation>共用資料夾 94</translation>
    </message>
    <message>
        <source>Shared Folder 95</source>
        <translation>共用資料夾 95</translation>
    </message>
    <message>
        <source>Shared Folder 96</source>
        <translation>共用資料夾 96</translation>
    </message>
    <message>
        <source>Shared Folder 97</source>
        <translation>共用資料夾 97</translation>
    </message>
    <message>
        <source>Shared Folder 98</source>
        <translation>共用資料夾 98</translation>
    </message>
    <message>
        <source>Shared Folder 99</source>
        <translation>共用資料夾 99</translation>
    </message>
    <message>
        <source>Shared Folder 100</source>
        <translation>共用資料夾 100</translation>
    </message>
    <message>
        <source>Choose a Print Queue</source>
        <translation>選擇列印佇列</translation>
    </message>
    <message>
        <source>Choose the print queue whose printer settings you want to change.</source>
        <translation>請選擇要變更其印表機設定的列印佇列。</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>篩選(&amp;F):</translation>
    </message>
    <message>
        <source>Name, description, make or model</source>
        <translation>名稱、描述、製造商或型號</translation>
    </message>
    <message>
        <source>Print queues</source>
        <translation>列印佇列</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>佇列</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Make and Model</source>
        <translation>製造商和型號</translation>
    </message>
    <message>
        <source>Utility</source>
        <translation>公用程式</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>已設定</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Damaged: repair it</source>
        <translation>已損壞：需要修復</translation>
    </message>
    <message>
        <source>Asking the print server for its queues...</source>
        <translation>正在向列印伺服器查詢其佇列...</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached. Check that it is running, then try again.</source>
        <translation>無法連線至列印伺服器 %1。請確認它正在執行，然後再試一次。</translation>
    </message>
    <message>
        <source>The print server %1 has no print queues. Add a printer, then try again.</source>
        <translation>列印伺服器 %1 沒有列印佇列。請新增印表機，然後再試一次。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Password Required</source>
        <translation>需要密碼</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password to change the queue &quot;%2&quot;.</source>
        <translation>列印伺服器 %1 要求提供使用者名稱和密碼才能變更佇列「%2」。</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password.</source>
        <translation>列印伺服器 %1 要求提供使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>The user name or password was not accepted. Try again.</source>
        <translation>使用者名稱或密碼未被接受。請再試一次。</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>使用者名稱(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密碼(&amp;P):</translation>
    </message>
    <message>
        <source>Loading settings...</source>
        <translation>正在載入設定...</translation>
    </message>
    <message>
        <source>Saving settings...</source>
        <translation>正在儲存設定...</translation>
    </message>
    <message>
        <source>Setting up the queue...</source>
        <translation>正在設定佇列...</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>The print server %1 has no print queue "%2".</source>
        <translation>列印伺服器 %1 上沒有列印佇列「%2」。</translation>
    </message>
    <message>
        <source>The print queue "%1" has no PPD, so it keeps no printer settings.</source>
        <translation>列印佇列「%1」沒有 PPD，因此無法保存印表機設定。</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" cannot be read, so its settings cannot be shown or saved.</source>
        <translation>無法讀取列印佇列「%1」的 PPD，因此無法顯示或儲存其設定。</translation>
    </message>
    <message>
        <source>The print queue "%1" was not set up: the print server did not accept the user name and password.</source>
        <translation>未設定列印佇列「%1」：列印伺服器不接受該使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>The print server %1 lacks the utility's driver filter, so its queues cannot be set up. Install the utility on the print server first.</source>
        <translation>列印伺服器 %1 缺少本公用程式的驅動程式過濾器，因此無法設定其佇列。請先在列印伺服器上安裝本公用程式。</translation>
    </message>
    <message>
        <source>You may not change this queue's settings: the print queue "%1" names who may save them. They are shown read-only.</source>
        <translation>您不能變更此佇列的設定：列印佇列「%1」指定了可以儲存設定的使用者。設定以唯讀方式顯示。</translation>
    </message>
    <message>
        <source>The print queue "%1" could not be set up: %2</source>
        <translation>無法設定列印佇列「%1」：%2</translation>
    </message>
    <message>
        <source>The print server refused the settings (%1). Nothing was saved.</source>
        <translation>列印伺服器拒絕了這些設定（%1）。未儲存任何內容。</translation>
    </message>
    <message>
        <source>The print server stopped answering while the settings were saved. Whether they arrived shows when the window is opened again.</source>
        <translation>儲存設定時列印伺服器停止回應。再次開啟視窗即可看到設定是否已送達。</translation>
    </message>
    <message>
        <source>The print server ended update job %1 before it stored the settings, so nothing was saved. Check the print queue on the server, then try again.</source>
        <translation>列印伺服器在儲存設定之前結束了更新工作 %1，因此未儲存任何內容。請檢查伺服器上的列印佇列，然後再試一次。</translation>
    </message>
    <message>
        <source>Update job %1 did not end in time; the print queue may be paused. The settings are stored when the queue runs again, unless the job is cancelled.</source>
        <translation>更新工作 %1 未能及時結束，列印佇列可能已暫停。除非工作被取消，否則佇列恢復執行時將儲存這些設定。</translation>
    </message>
    <message>
        <source>Update job %1 ended, but the queue's PPD does not hold every setting (%2). Try again.</source>
        <translation>更新工作 %1 已結束，但佇列的 PPD 未包含全部設定（%2）。請再試一次。</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" was damaged while the settings were stored. Choose "Repair…" to rebuild it, then save.</source>
        <translation>儲存設定時列印佇列「%1」的 PPD 已損壞。請選擇「修復…」重建它，然後儲存。</translation>
    </message>
    <message>
        <source>The settings were sent, but the queue's PPD could not be read back to check them. Open the window again to see what is stored.</source>
        <translation>設定已傳送，但無法讀回佇列的 PPD 進行核對。請再次開啟視窗查看已儲存的內容。</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>修復…</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" is damaged, so its settings cannot be shown or saved. Choose "Repair…" to rebuild it from the queue's driver with the settings it still holds.</source>
        <translation>列印佇列「%1」的 PPD 已損壞，無法顯示或儲存其設定。請選擇「修復…」，以該佇列的驅動程式重建它，並保留其中仍可讀取的設定。</translation>
    </message>
    <message>
        <source>The print server stopped answering, so whether the print queue "%1" was changed is not known. Try again once the server answers: only what is not done yet is done again.</source>
        <translation>列印伺服器已停止回應，無法確定列印佇列「%1」是否已變更。請在伺服器回應後重試：只會執行尚未完成的部分。</translation>
    </message>
    <message>
        <source>The print server has no driver for "%2", the printer of the queue "%1", so its PPD cannot be rebuilt. A print administrator can give the queue its driver (lpadmin -m), then set it up.</source>
        <translation>列印伺服器沒有「%2」（佇列「%1」的印表機）的驅動程式，因此無法重建其 PPD。列印管理員可以為該佇列指定驅動程式（lpadmin -m），然後再設定它。</translation>
    </message>
    <message>
        <source>Update job %1 ended, then a later save to this print queue (update job %2) replaced its settings. Open the window again to see what is stored.</source>
        <translation>更新工作 %1 已結束，隨後對此列印佇列的另一次儲存（更新工作 %2）取代了它的設定。請重新開啟視窗查看目前儲存的內容。</translation>
    </message>
    <message>
        <source>Discard the changes to the settings?</source>
        <translation>放棄對設定的變更嗎?</translation>
    </message>
    <message>
        <source>They were not saved to the print queue.</source>
        <translation>這些變更尚未儲存到列印佇列。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放棄</translation>
    </message>
    <message>
        <source>It may hold the letters A-Z and a-z, the digits 0-9 and these characters: %1</source>
        <translation>可以包含字母 A-Z 和 a-z、數字 0-9 以及以下字元：%1</translation>
    </message>
    <message>
        <source>The IP address of the printer is empty. Enter it, then try again.</source>
        <translation>印表機的 IP 位址為空白。請輸入後再試一次。</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMP community name may be wrong.</source>
        <translation>位於 %1 的印表機在查詢%2時沒有回應。IP 位址或 SNMP 社群名稱可能有誤。</translation>
    </message>
    <message>
        <source>The printer at %1 answered with an error when asked for %2. It may not keep this information.</source>
        <translation>位於 %1 的印表機在查詢%2時傳回錯誤。它可能不保存此資訊。</translation>
    </message>
    <message>
        <source>The printer at %1 sent an answer that cannot be read when asked for %2.</source>
        <translation>位於 %1 的印表機在查詢%2時傳送了無法讀取的回應。</translation>
    </message>
    <message>
        <source>its MAC address</source>
        <translation>其 MAC 位址</translation>
    </message>
    <message>
        <source>its shared folders</source>
        <translation>其共用資料夾</translation>
    </message>
    <message>
        <source>its forms</source>
        <translation>其表單</translation>
    </message>
    <message>
        <source>its barcode area definitions</source>
        <translation>其條碼區域定義</translation>
    </message>
    <message>
        <source>its color profiles</source>
        <translation>其色彩描述檔</translation>
    </message>
    <message>
        <source>Ask the printer at this IP address for its MAC address, shared folders, forms, barcode area definitions and color profiles.</source>
        <translation>向此 IP 位址的印表機查詢其 MAC 位址、共用資料夾、表單、條碼區域定義和色彩描述檔。</translation>
    </message>
    <message>
        <source>Ask the printer for this list.</source>
        <translation>向印表機查詢此清單。</translation>
    </message>
    <message>
        <source>Empty this list. The queue keeps its stored list until you choose OK.</source>
        <translation>清空此清單。在您選擇「確定」之前，佇列保留其已儲存的清單。</translation>
    </message>
    <message>
        <source>Also offer each user's personal folder. The printer allows it when its administrator login mode is on.</source>
        <translation>同時提供每位使用者的個人資料夾。印表機的管理員登入模式開啟時可用。</translation>
    </message>
    <message>
        <source>Wake the printer also when it is in another network, behind a router.</source>
        <translation>印表機位於路由器後的其他網路中時也將其喚醒。</translation>
    </message>
    <message>
        <source>Drop the registered folders?</source>
        <translation>移除已登記的資料夾嗎?</translation>
    </message>
    <message>
        <source>The default folders take their place. The queue keeps its stored folders until you choose OK.</source>
        <translation>將以預設資料夾代替。在您選擇「確定」之前，佇列保留其已儲存的資料夾。</translation>
    </message>
    <message>
        <source>No queue matches the filter.</source>
        <translation>沒有符合篩選條件的佇列。</translation>
    </message>
    <message>
        <source>The print queue "%1" is stopped: settings saved now are stored only once it runs again.</source>
        <translation>列印佇列「%1」已停止：現在儲存的設定要等佇列恢復執行後才會儲存。</translation>
    </message>
    <message>
        <source>No printer address is stored for the queue "%1". It prints to %2.</source>
        <translation>佇列「%1」未儲存印表機位址。它列印到 %2。</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Other Server…</source>
        <translation>其他伺服器…</translation>
    </message>
    <message>
        <source>Connect to a Print Server</source>
        <translation>連線到列印伺服器</translation>
    </message>
    <message>
        <source>Print server (host or host:port):</source>
        <translation>列印伺服器（主機或 主機:連接埠）：</translation>
    </message>
    <message>
        <source>"%1" names no print server. Enter a host name or address, with a port if it is not 631.</source>
        <translation>「%1」不是列印伺服器。請輸入主機名稱或位址；連接埠不是 631 時請一併輸入。</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMPv3 privacy passphrase may be wrong.</source>
        <translation>位於 %1 的印表機在查詢%2時沒有回應。IP 位址或 SNMPv3 加密密碼短語可能有誤。</translation>
    </message>
    <message>
        <source>The printer at %1 has no SNMPv3 user of this name (asked for %2). Check the user name under SNMP Security.</source>
        <translation>位於 %1 的印表機沒有此名稱的 SNMPv3 使用者（查詢%2時）。請在 SNMP 安全性中檢查使用者名稱。</translation>
    </message>
    <message>
        <source>The printer at %1 refused the authentication passphrase of the SNMPv3 user when asked for %2. Enter it again under SNMP Security.</source>
        <translation>位於 %1 的印表機在查詢%2時拒絕了 SNMPv3 使用者的驗證密碼短語。請在 SNMP 安全性中重新輸入。</translation>
    </message>
    <message>
        <source>The printer at %1 does not accept the SNMPv3 user with privacy as chosen (asked for %2). Check the privacy protocol under SNMP Security.</source>
        <translation>位於 %1 的印表機不接受按所選加密設定的 SNMPv3 使用者（查詢%2時）。請在 SNMP 安全性中檢查加密協定。</translation>
    </message>
    <message>
        <source>No host is known as "%1". Check the printer's IP address.</source>
        <translation>找不到名為「%1」的主機。請檢查印表機的 IP 位址。</translation>
    </message>
    <message>
        <source>SNMP Security…</source>
        <translation>SNMP 安全性…</translation>
    </message>
    <message>
        <source>SNMP v1 with the community name</source>
        <translation>使用社群名稱的 SNMP v1</translation>
    </message>
    <message>
        <source>SNMPv3 with a user</source>
        <translation>使用使用者的 SNMPv3</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>使用者名稱:</translation>
    </message>
    <message>
        <source>Authentication:</source>
        <translation>驗證:</translation>
    </message>
    <message>
        <source>Authentication passphrase:</source>
        <translation>驗證密碼短語:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>加密:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Privacy passphrase:</source>
        <translation>加密密碼短語:</translation>
    </message>
    <message>
        <source>Remember in the keyring</source>
        <translation>儲存在金鑰圈中</translation>
    </message>
    <message>
        <source>The SNMPv3 user name cannot contain "%1".</source>
        <translation>SNMPv3 使用者名稱不能包含「%1」。</translation>
    </message>
    <message>
        <source>Get Printer Info asks the printer at %2 as the SNMPv3 user %1. Enter the user's passphrases.</source>
        <translation>取得印表機資訊將以 SNMPv3 使用者 %1 的身分查詢位於 %2 的印表機。請輸入該使用者的密碼短語。</translation>
    </message>
    <message>
        <source>At least %1 characters</source>
        <translation>至少 %1 個字元</translation>
    </message>
    <message>
        <source>The passphrases could not be kept in the keyring: no desktop secret store answered. They are used until the window closes.</source>
        <translation>無法將密碼短語儲存在金鑰圈中：桌面的密鑰儲存沒有回應。在視窗關閉之前仍會使用這些密碼短語。</translation>
    </message>
</context>
</TS>

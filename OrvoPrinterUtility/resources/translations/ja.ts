<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Localizable</name>
    <message>
        <source> - Utility</source>
        <translation> - ユーティリティ</translation>
    </message>
    <message>
        <source>Orvo Printer Utility</source>
        <translation>Orvo プリンターユーティリティ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>IntroText</source>
        <translation>このプリンターキューで使う、プリンターの共有フォルダー、フォーム、バーコード領域定義、カラープロファイルを設定します。</translation>
    </message>
    <message>
        <source>SNMP Community Name</source>
        <translation>SNMP コミュニティー名</translation>
    </message>
    <message>
        <source>Wake On LAN</source>
        <translation>Wake On LAN</translation>
    </message>
    <message>
        <source>MAC Address of the Printer:</source>
        <translation>プリンターの MAC アドレス(&amp;M):</translation>
    </message>
    <message>
        <source>MAC address, byte %1</source>
        <translation>MAC アドレス、%1 バイト目</translation>
    </message>
    <message>
        <source>Connect to Another Network</source>
        <translation>別のネットワークに接続</translation>
    </message>
    <message>
        <source>IP address of the printer:</source>
        <translation>プリンターの IP アドレス(&amp;I):</translation>
    </message>
    <message>
        <source>Get Printer Info</source>
        <translation>プリンター情報の取得</translation>
    </message>
    <message>
        <source>Getting information from printer...</source>
        <translation>プリンターから情報を取得しています...</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Barcode area definition</source>
        <translation>バーコード領域定義</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>カラープロファイル</translation>
    </message>
    <message>
        <source>Shared folder in the printer</source>
        <translation>プリンター内の共有フォルダー</translation>
    </message>
    <message>
        <source>Register folder</source>
        <translation>登録フォルダー</translation>
    </message>
    <message>
        <source>Add -&gt;</source>
        <translation>追加 -&gt;</translation>
    </message>
    <message>
        <source>&lt;- Delete</source>
        <translation>&lt;- 削除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Use Personal folder</source>
        <translation>個人フォルダーを使用</translation>
    </message>
    <message>
        <source>Failed to obtain information.</source>
        <translation>情報の取得に失敗しました。</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TOO_LONG</source>
        <translation>設定が長すぎるため、プリントサーバーからプリンタードライバーに渡せず、保存できません。次の一覧を短くしてから、もう一度 OK を押してください:</translation>
    </message>
    <message>
        <source>The SNMP community name cannot contain "%1".</source>
        <translation>SNMP コミュニティー名に「%1」は使用できません。</translation>
    </message>
    <message>
        <source>The SNMP community name is longer than %1 characters.</source>
        <translation>SNMP コミュニティー名が %1 文字を超えています。</translation>
    </message>
    <message>
        <source>The IP address of the printer must be an IPv4 or IPv6 address, or a host name of at most %1 characters.</source>
        <translation>プリンターの IP アドレスには、IPv4 アドレス、IPv6 アドレス、または %1 文字以内のホスト名を入力してください。</translation>
    </message>
    <message>
        <source>The MAC address of the printer is incomplete: each of its six bytes needs two hexadecimal digits (0-9, A-F).</source>
        <translation>プリンターの MAC アドレスが不完全です。6 つのバイトそれぞれに 2 桁の 16 進数 (0-9、A-F) が必要です。</translation>
    </message>
    <message>
        <source>Wake On LAN needs the MAC address of the printer. Enter it, or turn Wake On LAN off.</source>
        <translation>Wake On LAN にはプリンターの MAC アドレスが必要です。MAC アドレスを入力するか、Wake On LAN をオフにしてください。</translation>
    </message>
    <message>
        <source>The list "%1" holds more than %2 entries.</source>
        <translation>一覧「%1」の項目が %2 個を超えています。</translation>
    </message>
    <message>
        <source>A name in the list "%1" is longer than %2 bytes.</source>
        <translation>一覧「%1」に %2 バイトを超える名前があります。</translation>
    </message>
    <message>
        <source>"%1" holds a value that cannot be saved.</source>
        <translation>「%1」に保存できない値があります。</translation>
    </message>
    <message>
        <source>IDS_QUEUE_NOT_SET_UP</source>
        <translation>プリントキュー「%1」はユーティリティの設定を保存するように設定されていないため、まだ何も保存できません。「設定…」を選んで設定してください。プリントサーバーが管理者のパスワードを求めることがあります。</translation>
    </message>
    <message>
        <source>Shared Folder 1</source>
        <translation>共有フォルダー 1</translation>
    </message>
    <message>
        <source>Shared Folder 2</source>
        <translation>共有フォルダー 2</translation>
    </message>
    <message>
        <source>Shared Folder 3</source>
        <translation>共有フォルダー 3</translation>
    </message>
    <message>
        <source>Shared Folder 4</source>
        <translation>共有フォルダー 4</translation>
    </message>
    <message>
        <source>Shared Folder 5</source>
        <translation>共有フォルダー 5</translation>
    </message>
    <message>
        <source>Shared Folder 6</source>
        <translation>共有フォルダー 6</translation>
    </message>
    <message>
        <source>Shared Folder 7</source>
        <translation>共有フォルダー 7</translation>
    </message>
    <message>
        <source>Shared Folder 8</source>
        <translation>共有フォルダー 8</translation>
    </message>
    <message>
        <source>Shared Folder 9</source>
        <translation>共有フォルダー 9</translation>
    </message>
    <message>
        <source>Shared Folder 10</source>
        <translation>共有フォルダー 10</translation>
    </message>
    <message>
        <source>Shared Folder 11</source>
        <translation>共有フォルダー 11</translation>
    </message>
    <message>
        <source>Shared Folder 12</source>
        <translation>共有フォルダー 12</translation>
    </message>
    <message>
        <source>Shared Folder 13</source>
        <translation>共有フォルダー 13</translation>
    </message>
    <message>
        <source>Shared Folder 14</source>
        <translation>共有フォルダー 14</translation>
    </message>
    <message>
        <source>Shared Folder 15</source>
        <translation>共有フォルダー 15</translation>
    </message>
    <message>
        <source>Shared Folder 16</source>
        <translation>共有フォルダー 16</translation>
    </message>
    <message>
        <source>Shared Folder 17</source>
        <translation>共有フォルダー 17</translation>
    </message>
    <message>
        <source>Shared Folder 18</source>
        <translation>共有フォルダー 18</translation>
    </message>
    <message>
        <source>Shared Folder 19</source>
        <translation>共有フォルダー 19</translation>
    </message>
    <message>
        <source>Shared Folder 20</source>
        <translation>共有フォルダー 20</translation>
    </message>
    <message>
        <source>Shared Folder 21</source>
        <translation>共有フォルダー 21</translation>
    </message>
    <message>
        <source>Shared Folder 22</source>
        <translation>共有フォルダー 22</translation>
    </message>
    <message>
        <source>Shared Folder 23</source>
        <translation>共有フォルダー 23</translation>
    </message>
    <message>
        <source>Shared Folder 24</source>
        <translation>共有フォルダー 24</translation>
    </message>
    <message>
        <source>Shared Folder 25</source>
        <translation>共有フォルダー 25</translation>
    </message>
    <message>
        <source>Shared Folder 26</source>
        <translation>共有フォルダー 26</translation>
    </message>
    <message>
        <source>Shared Folder 27</source>
        <translation>共有フォルダー 27</translation>
    </message>
    <message>
        <source>Shared Folder 28</source>
        <translation>共有フォルダー 28</translation>
    </message>
    <message>
        <source>Shared Folder 29</source>
        <translation>共有フォルダー 29</translation>
    </message>
    <message>
        <source>Shared Folder 30</source>
        <translation>共有フォルダー 30</translation>
    </message>
    <message>
        <source>Shared Folder 31</source>
        <translation>共有フォルダー 31</translation>
    </message>
    <message>
        <source>Shared Folder 32</source>
        <translation>共有フォルダー 32</translation>
    </message>
    <message>
        <source>Shared Folder 33</source>
        <translation>共有フォルダー 33</translation>
    </message>
    <message>
        <source>Shared Folder 34</source>
        <translation>共有フォルダー 34</translation>
    </message>
    <message>
        <source>Shared Folder 35</source>
        <translation>共有フォルダー 35</translation>
    </message>
    <message>
        <source>Shared Folder 36</source>
        <translation>共有フォルダー 36</translation>
    </message>
    <message>
        <source>Shared Folder 37</source>
        <translation>共有フォルダー 37</translation>
    </message>
    <message>
        <source>Shared Folder 38</source>
        <translation>共有フォルダー 38</translation>
    </message>
    <message>
        <source>Shared Folder 39</source>
        <translation>共有フォルダー 39</translation>
    </message>
    <message>
        <source>Shared Folder 40</source>
        <translation>共有フォルダー 40</translation>
    </message>
    <message>
        <source>Shared Folder 41</source>
        <translation>共有フォルダー 41</translation>
    </message>
    <message>
        <source>Shared Folder 42</source>
        <translation>共有フォルダー 42</translation>
    </message>
    <message>
        <source>Shared Folder 43</source>
        <translation>共有フォルダー 43</translation>
    </message>
    <message>
        <source>Shared Folder 44</source>
        <translation>共有フォルダー 44</translation>
    </message>
    <message>
        <source>Shared Folder 45</source>
        <translation>共有フォルダー 45</translation>
    </message>
    <message>
        <source>Shared Folder 46</source>
        <translation>共有フォルダー 46</translation>
    </message>
    <message>
        <source>Shared Folder 47</source>
        <translation>共有フォルダー 47</translation>
    </message>
    <message>
        <source>Shared Folder 48</source>
        <translation>共有フォルダー 48</translation>
    </message>
    <message>
        <source>Shared Folder 49</source>
        <translation>共有フォルダー 49</translation>
    </message>
    <message>
        <source>Shared Folder 50</source>
        <translation>共有フォルダー 50</translation>
    </message>
    <message>
        <source>Shared Folder 51</source>
        <translation>共有フォルダー 51</translation>
    </message>
    <message>
        <source>Shared Folder 52</source>
        <translation>共有フォルダー 52</translation>
    </message>
    <message>
        <source>Shared Folder 53</source>
        <translation>共有フォルダー 53</translation>
    </message>
    <message>
        <source>Shared Folder 54</source>
        <translation>共有フォルダー 54</translation>
    </message>
    <message>
        <source>Shared Folder 55</source>
        <translation>共有フォルダー 55</translation>
    </message>
    <message>
        <source>Shared Folder 56</source>
        <translation>共有フォルダー 56</translation>
    </message>
    <message>
        <source>Shared Folder 57</source>
        <translation>共有フォルダー 57</translation>
    </message>
    <message>
        <source>Shared Folder 58</source>
        <translation>共有フォルダー 58</translation>
    </message>
    <message>
        <source>Shared Folder 59</source>
        <translation>共有フォルダー 59</translation>
    </message>
    <message>
        <source>Shared Folder 60</source>
        <translation>共有フォルダー 60</translation>
    </message>
    <message>
        <source>Shared Folder 61</source>
        <translation>共有フォルダー 61</translation>
    </message>
    <message>
        <source>Shared Folder 62</source>
        <translation>共有フォルダー 62</translation>
    </message>
    <message>
        <source>Shared Folder 63</source>
        <translation>共有フォルダー 63</translation>
    </message>
    <message>
        <source>Shared Folder 64</source>
        <translation>共有フォルダー 64</translation>
    </message>
    <message>
        <source>Shared Folder 65</source>
        <translation>共有フォルダー 65</translation>
    </message>
    <message>
        <source>Shared Folder 66</source>
        <translation>共有フォルダー 66</translation>
    </message>
    <message>
        <source>Shared Folder 67</source>
        <translation>共有フォルダー 67</translation>
    </message>
    <message>
        <source>Shared Folder 68</source>
        <translation>共有フォルダー 68</translation>
    </message>
    <message>
        <source>Shared Folder 69</source>
        <translation>共有フォルダー 69</translation>
    </message>
    <message>
        <source>Shared Folder 70</source>
        <translation>共有フォルダー 70</translation>
    </message>
    <message>
        <source>Shared Folder 71</source>
        <translation>共有フォルダー 71</translation>
    </message>
    <message>
        <source>Shared Folder 72</source>
        <translation>共有フォルダー 72</translation>
    </message>
    <message>
        <source>Shared Folder 73</source>
        <translation>共有フォルダー 73</translation>
    </message>
    <message>
        <source>Shared Folder 74</source>
        <translation>共有フォルダー 74</translation>
    </message>
    <message>
        <source>Shared Folder 75</source>
        <translation>共有フォルダー 75</translation>
    </message>
    <message>
        <source>Shared Folder 76</source>
        <translation>共有フォルダー 76</translation>
    </message>
    <message>
        <source>Shared Folder 77</source>
        <translation>共有フォルダー 77</translation>
    </message>
    <message>
        <source>Shared Folder 78</source>
        <translation>共有フォルダー 78</translation>
    </message>
    <message>
        <source>Shared Folder 79</source>
        <translation>共有フォルダー 79</translation>
    </message>
    <message>
        <source>Shared Folder 80</source>
        <translation>共有フォルダー 80</translation>
    </message>
    <message>
        <source>Shared Folder 81</source>
        <translation>共有フォルダー 81</translation>
    </message>
    <message>
        <source>Shared Folder 82</source>
        <translation>共有フォルダー 82</translation>
    </message>
    <message>
        <source>Shared Folder 83</source>
        <translation>共有フォルダー 83</translation>
    </message>
    <message>
        <source>Shared Folder 84</source>
        <translation>共有フォルダー 84</translation>
    </message>
    <message>
        <source>Shared Folder 85</source>
        <translation>共有フォルダー 85</translation>
    </message>
    <message>
        <source>Shared Folder 86</source>
        <translation>共有フォルダー 86</translation>
    </message>
    <message>
        <source>Shared Folder 87</source>
        <translation>共有フォルダー 87</translation>
    </message>
    <message>
        <source>Shared Folder 88</source>
        <translation>共有フォルダー 88</translation>
    </message>
    <message>
        <source>Shared Folder 89</source>
        <translation>共有フォルダー 89</translation>
    </message>
    <message>
        <source>Shared Folder 90</source>
        <translation>共有フォルダー 90</translation>
    </message>
    <message>
        <source>Shared Folder 91</source>
        <translation>共有フォルダー 91</translation>
    </message>
    <message>
        <source>Shared Folder 92</source>
        <translation>共有フォルダー 92</translation>
    </message>
    <message>
        <source>Shared Folder 93</source>
        <translation>共有フォルダー 93</translation>
    </message>
    <message>
        <source>Shared Folder 94</source>
        <translation>共有フォルダー 94</translation>
    </message>
    <message>
        <source>Shared Folder 95</source>
        <translation>共有フォルダー 95</translation>
    </message>
    <message>
        <source>Shared Folder 96</source>
        <translation>共有フォルダー 96</translation>
    </message>
    <message>
        <source>Shared Folder 97</source>
        <translation>共有フォルダー 97</translation>
    </message>
    <message>
        <source>Shared Folder 98</source>
        <translation>共有フォルダー 98</translation>
    </message>
    <message>
        <source>Shared Folder 99</source>
        <translation>共有フォルダー 99</translation>
    </message>
    <message>
        <source>Shared Folder 100</source>
        <translation>共有フォルダー 100</translation>
    </message>
    <message>
        <source>Choose a Print Queue</source>
        <translation>プリントキューの選択</translation>
    </message>
    <message>
        <source>Choose the print queue whose printer settings you want to change.</source>
        <translation>プリンター設定を変更するプリントキューを選択してください。</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>フィルター(&amp;F):</translation>
    </message>
    <message>
        <source>Name, description, make or model</source>
        <translation>名前、説明、メーカー、モデル</translation>
    </message>
    <message>
        <source>Print queues</source>
        <translation>プリントキュー</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>キュー</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Make and Model</source>
        <translation>メーカーとモデル</translation>
    </message>
    <message>
        <source>Utility</source>
        <translation>ユーティリティ</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>設定済み</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Damaged: repair it</source>
        <translation>破損: 修復が必要</translation>
    </message>
    <message>
        <source>Asking the print server for its queues...</source>
        <translation>プリントサーバーにキューを問い合わせています...</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached. Check that it is running, then try again.</source>
        <translation>プリントサーバー %1 に接続できません。サーバーが動作していることを確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The print server %1 has no print queues. Add a printer, then try again.</source>
        <translation>プリントサーバー %1 にはプリントキューがありません。プリンターを追加してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Password Required</source>
        <translation>パスワードが必要です</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password to change the queue &quot;%2&quot;.</source>
        <translation>プリントサーバー %1 でキュー「%2」を変更するには、ユーザー名とパスワードが必要です。</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password.</source>
        <translation>プリントサーバー %1 がユーザー名とパスワードを求めています。</translation>
    </message>
    <message>
        <source>The user name or password was not accepted. Try again.</source>
        <translation>ユーザー名またはパスワードが受け付けられませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>ユーザー名(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>Loading settings...</source>
        <translation>設定を読み込んでいます...</translation>
    </message>
    <message>
        <source>Saving settings...</source>
        <translation>設定を保存しています...</translation>
    </message>
    <message>
        <source>Setting up the queue...</source>
        <translation>キューを設定しています...</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>The print server %1 has no print queue "%2".</source>
        <translation>プリントサーバー %1 にプリントキュー「%2」はありません。</translation>
    </message>
    <message>
        <source>The print queue "%1" has no PPD, so it keeps no printer settings.</source>
        <translation>プリントキュー「%1」には PPD がないため、プリンターの設定を保持できません。</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" cannot be read, so its settings cannot be shown or saved.</source>
        <translation>プリントキュー「%1」の PPD を読み取れないため、設定を表示も保存もできません。</translation>
    </message>
    <message>
        <source>The print queue "%1" was not set up: the print server did not accept the user name and password.</source>
        <translation>プリントキュー「%1」は設定されませんでした。プリントサーバーがユーザー名とパスワードを受け付けませんでした。</translation>
    </message>
    <message>
        <source>The print server %1 lacks the utility's driver filter, so its queues cannot be set up. Install the utility on the print server first.</source>
        <translation>プリントサーバー %1 にはユーティリティのドライバーフィルターがないため、キューを設定できません。先にプリントサーバーにユーティリティをインストールしてください。</translation>
    </message>
    <message>
        <source>You may not change this queue's settings: the print queue "%1" names who may save them. They are shown read-only.</source>
        <translation>このキューの設定は変更できません: プリントキュー「%1」では設定を保存できるユーザーが指定されています。設定は読み取り専用で表示されます。</translation>
    </message>
    <message>
        <source>The print queue "%1" could not be set up: %2</source>
        <translation>プリントキュー「%1」を設定できませんでした: %2</translation>
    </message>
    <message>
        <source>The print server refused the settings (%1). Nothing was saved.</source>
        <translation>プリントサーバーが設定を拒否しました (%1)。何も保存されていません。</translation>
    </message>
    <message>
        <source>The print server stopped answering while the settings were saved. Whether they arrived shows when the window is opened again.</source>
        <translation>保存中にプリントサーバーが応答しなくなりました。設定が届いたかどうかは、ウィンドウをもう一度開くと分かります。</translation>
    </message>
    <message>
        <source>The print server ended update job %1 before it stored the settings, so nothing was saved. Check the print queue on the server, then try again.</source>
        <translation>プリントサーバーは設定を保存する前に更新ジョブ %1 を終了したため、何も保存されていません。サーバー上のプリントキューを確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Update job %1 did not end in time; the print queue may be paused. The settings are stored when the queue runs again, unless the job is cancelled.</source>
        <translation>更新ジョブ %1 が時間内に終了しませんでした。プリントキューが一時停止している可能性があります。ジョブが取り消されない限り、キューが再開したときに設定が保存されます。</translation>
    </message>
    <message>
        <source>Update job %1 ended, but the queue's PPD does not hold every setting (%2). Try again.</source>
        <translation>更新ジョブ %1 は終了しましたが、キューの PPD にすべての設定が含まれていません (%2)。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" was damaged while the settings were stored. Choose "Repair…" to rebuild it, then save.</source>
        <translation>設定の保存中にプリントキュー「%1」の PPD が破損しました。「修復…」を選んで作り直してから保存してください。</translation>
    </message>
    <message>
        <source>The settings were sent, but the queue's PPD could not be read back to check them. Open the window again to see what is stored.</source>
        <translation>設定は送信されましたが、確認のためにキューの PPD を読み戻せませんでした。ウィンドウをもう一度開いて、保存内容を確認してください。</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>修復…</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" is damaged, so its settings cannot be shown or saved. Choose "Repair…" to rebuild it from the queue's driver with the settings it still holds.</source>
        <translation>プリントキュー「%1」の PPD が破損しているため、設定を表示も保存もできません。「修復…」を選ぶと、キューのドライバーから PPD を作り直し、まだ読める設定を残します。</translation>
    </message>
    <message>
        <source>The print server stopped answering, so whether the print queue "%1" was changed is not known. Try again once the server answers: only what is not done yet is done again.</source>
        <translation>プリントサーバーが応答しなくなったため、プリントキュー「%1」が変更されたかどうかはわかりません。サーバーが応答したらもう一度実行してください。まだ済んでいないことだけが実行されます。</translation>
    </message>
    <message>
        <source>The print server has no driver for "%2", the printer of the queue "%1", so its PPD cannot be rebuilt. A print administrator can give the queue its driver (lpadmin -m), then set it up.</source>
        <translation>プリントサーバーには、キュー「%1」のプリンター「%2」のドライバーがないため、PPD を作り直せません。プリント管理者がキューにドライバーを設定 (lpadmin -m) してから、キューを設定してください。</translation>
    </message>
    <message>
        <source>Update job %1 ended, then a later save to this print queue (update job %2) replaced its settings. Open the window again to see what is stored.</source>
        <translation>更新ジョブ %1 は終了しましたが、その後このプリントキューへの別の保存 (更新ジョブ %2) が設定を置き換えました。保存されている内容を確認するには、ウィンドウをもう一度開いてください。</translation>
    </message>
    <message>
        <source>Discard the changes to the settings?</source>
        <translation>設定の変更を破棄しますか?</translation>
    </message>
    <message>
        <source>They were not saved to the print queue.</source>
        <translation>変更はプリントキューに保存されていません。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>It may hold the letters A-Z and a-z, the digits 0-9 and these characters: %1</source>
        <translation>使用できるのは英字 A-Z と a-z、数字 0-9、および次の文字です: %1</translation>
    </message>
    <message>
        <source>The IP address of the printer is empty. Enter it, then try again.</source>
        <translation>プリンターの IP アドレスが空です。入力してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMP community name may be wrong.</source>
        <translation>%1 のプリンターは %2 の問い合わせに応答しませんでした。IP アドレスまたは SNMP コミュニティー名が間違っている可能性があります。</translation>
    </message>
    <message>
        <source>The printer at %1 answered with an error when asked for %2. It may not keep this information.</source>
        <translation>%1 のプリンターは %2 の問い合わせにエラーで応答しました。この情報を保持していない可能性があります。</translation>
    </message>
    <message>
        <source>The printer at %1 sent an answer that cannot be read when asked for %2.</source>
        <translation>%1 のプリンターから %2 の問い合わせに対して読み取れない応答が返されました。</translation>
    </message>
    <message>
        <source>its MAC address</source>
        <translation>MAC アドレス</translation>
    </message>
    <message>
        <source>its shared folders</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>its forms</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>its barcode area definitions</source>
        <translation>バーコード領域定義</translation>
    </message>
    <message>
        <source>its color profiles</source>
        <translation>カラープロファイル</translation>
    </message>
    <message>
        <source>Ask the printer at this IP address for its MAC address, shared folders, forms, barcode area definitions and color profiles.</source>
        <translation>この IP アドレスのプリンターに、MAC アドレス、共有フォルダー、フォーム、バーコード領域定義、カラープロファイルを問い合わせます。</translation>
    </message>
    <message>
        <source>Ask the printer for this list.</source>
        <translation>このリストをプリンターに問い合わせます。</translation>
    </message>
    <message>
        <source>Empty this list. The queue keeps its stored list until you choose OK.</source>
        <translation>このリストを空にします。OK を選ぶまで、キューには保存済みのリストが残ります。</translation>
    </message>
    <message>
        <source>Also offer each user's personal folder. The printer allows it when its administrator login mode is on.</source>
        <translation>各ユーザーの個人フォルダーも使えるようにします。プリンターの管理者ログインモードがオンのときに使用できます。</translation>
    </message>
    <message>
        <source>Wake the printer also when it is in another network, behind a router.</source>
        <translation>プリンターがルーターの先の別のネットワークにある場合も復帰させます。</translation>
    </message>
    <message>
        <source>Drop the registered folders?</source>
        <translation>登録済みのフォルダーを削除しますか?</translation>
    </message>
    <message>
        <source>The default folders take their place. The queue keeps its stored folders until you choose OK.</source>
        <translation>代わりに既定のフォルダーが入ります。OK を選ぶまで、キューには保存済みのフォルダーが残ります。</translation>
    </message>
    <message>
        <source>No queue matches the filter.</source>
        <translation>フィルターに一致するキューはありません。</translation>
    </message>
    <message>
        <source>The print queue "%1" is stopped: settings saved now are stored only once it runs again.</source>
        <translation>プリントキュー「%1」は停止しています。今保存した設定は、キューが再開したときに初めて保存されます。</translation>
    </message>
    <message>
        <source>No printer address is stored for the queue "%1". It prints to %2.</source>
        <translation>キュー「%1」にはプリンターのアドレスが保存されていません。印刷先は %2 です。</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Other Server…</source>
        <translation>他のサーバー…</translation>
    </message>
    <message>
        <source>Connect to a Print Server</source>
        <translation>プリントサーバーに接続</translation>
    </message>
    <message>
        <source>Print server (host or host:port):</source>
        <translation>プリントサーバー (ホストまたはホスト:ポート):</translation>
    </message>
    <message>
        <source>"%1" names no print server. Enter a host name or address, with a port if it is not 631.</source>
        <translation>「%1」はプリントサーバーを示していません。ホスト名またはアドレスを入力してください。ポートが 631 でない場合はポートも指定します。</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMPv3 privacy passphrase may be wrong.</source>
        <translation>%1 のプリンターは %2 の問い合わせに応答しませんでした。IP アドレスまたは SNMPv3 の暗号化パスフレーズが間違っている可能性があります。</translation>
    </message>
    <message>
        <source>The printer at %1 has no SNMPv3 user of this name (asked for %2). Check the user name under SNMP Security.</source>
        <translation>%1 のプリンターにはこの名前の SNMPv3 ユーザーがありません (%2 の問い合わせ)。SNMP セキュリティでユーザー名を確認してください。</translation>
    </message>
    <message>
        <source>The printer at %1 refused the authentication passphrase of the SNMPv3 user when asked for %2. Enter it again under SNMP Security.</source>
        <translation>%1 のプリンターは %2 の問い合わせで SNMPv3 ユーザーの認証パスフレーズを拒否しました。SNMP セキュリティで入力し直してください。</translation>
    </message>
    <message>
        <source>The printer at %1 does not accept the SNMPv3 user with privacy as chosen (asked for %2). Check the privacy protocol under SNMP Security.</source>
        <translation>%1 のプリンターは、選択した暗号化の設定では SNMPv3 ユーザーを受け付けません (%2 の問い合わせ)。SNMP セキュリティで暗号化プロトコルを確認してください。</translation>
    </message>
    <message>
        <source>No host is known as "%1". Check the printer's IP address.</source>
        <translation>「%1」という名前のホストは見つかりません。プリンターの IP アドレスを確認してください。</translation>
    </message>
    <message>
        <source>SNMP Security…</source>
        <translation>SNMP セキュリティ…</translation>
    </message>
    <message>
        <source>SNMP v1 with the community name</source>
        <translation>コミュニティ名による SNMP v1</translation>
    </message>
    <message>
        <source>SNMPv3 with a user</source>
        <translation>ユーザーによる SNMPv3</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Authentication:</source>
        <translation>認証:</translation>
    </message>
    <message>
        <source>Authentication passphrase:</source>
        <translation>認証パスフレーズ:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>暗号化:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Privacy passphrase:</source>
        <translation>暗号化パスフレーズ:</translation>
    </message>
    <message>
        <source>Remember in the keyring</source>
        <translation>キーリングに保存する</translation>
    </message>
    <message>
        <source>The SNMPv3 user name cannot contain "%1".</source>
        <translation>SNMPv3 のユーザー名に「%1」は使用できません。</translation>
    </message>
    <message>
        <source>Get Printer Info asks the printer at %2 as the SNMPv3 user %1. Enter the user's passphrases.</source>
        <translation>プリンター情報の取得では、%2 のプリンターに SNMPv3 ユーザー %1 として問い合わせます。ユーザーのパスフレーズを入力してください。</translation>
    </message>
    <message>
        <source>At least %1 characters</source>
        <translation>%1 文字以上</translation>
    </message>
    <message>
        <source>The passphrases could not be kept in the keyring: no desktop secret store answered. They are used until the window closes.</source>
        <translation>パスフレーズをキーリングに保存できませんでした。デスクトップのシークレットストアが応答しませんでした。ウィンドウを閉じるまでは使用されます。</translation>
    </message>
</context>
</TS>

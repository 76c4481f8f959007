<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Localizable</name>
    <message>
        <source> - Utility</source>
        <translation> - 实用程序</translation>
    </message>
    <message>
        <source>Orvo Printer Utility</source>
        <translation>Orvo 打印机实用程序</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>IntroText</source>
        <translation>为此打印机队列设置打印机的共享文件夹、表单、条形码区域定义和颜色配置文件。</translation>
    </message>
    <message>
        <source>SNMP Community Name</source>
        <translation>SNMP 团体名称</translation>
    </message>
    <message>
        <source>Wake On LAN</source>
        <translation>网络唤醒</translation>
    </message>
    <message>
        <source>MAC Address of the Printer:</source>
        <translation>打印机的 MAC 地址(&amp;M):</translation>
    </message>
    <message>
        <source>MAC address, byte %1</source>
        <translation>MAC 地址，第 %1 字节</translation>
    </message>
    <message>
        <source>Connect to Another Network</source>
        <translation>连接到其他网络</translation>
    </message>
    <message>
        <source>IP address of the printer:</source>
        <translation>打印机的 IP 地址(&amp;I):</translation>
    </message>
    <message>
        <source>Get Printer Info</source>
        <translation>获取打印机信息</translation>
    </message>
    <message>
        <source>Getting information from printer...</source>
        <translation>正在从打印机获取信息...</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Barcode area definition</source>
        <translation>条形码区域定义</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>颜色配置文件</translation>
    </message>
    <message>
        <source>Shared folder in the printer</source>
        <translation>打印机中的共享文件夹</translation>
    </message>
    <message>
        <source>Register folder</source>
        <translation>注册文件夹</translation>
    </message>
    <message>
        <source>Add -&gt;</source>
        <translation>添加 -&gt;</translation>
    </message>
    <message>
        <source>&lt;- Delete</source>
        <translation>&lt;- 删除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Use Personal folder</source>
        <translation>使用个人文件夹</translation>
    </message>
    <message>
        <source>Failed to obtain information.</source>
        <translation>无法获取信息。</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TOO_LONG</source>
        <translation>这些设置太长，打印服务器无法将其传递给打印机驱动程序，因此无法保存。请缩短以下列表，然后再次单击“确定”：</translation>
    </message>
    <message>
        <source>The SNMP community name cannot contain "%1".</source>
        <translation>SNMP 团体名称不能包含“%1”。</translation>
    </message>
    <message>
        <source>The SNMP community name is longer than %1 characters.</source>
        <translation>SNMP 团体名称超过 %1 个字符。</translation>
    </message>
    <message>
        <source>The IP address of the printer must be an IPv4 or IPv6 address, or a host name of at most %1 characters.</source>
        <translation>打印机的 IP 地址必须是 IPv4 或 IPv6 地址，或不超过 %1 个字符的主机名。</translation>
    </message>
    <message>
        <source>The MAC address of the printer is incomplete: each of its six bytes needs two hexadecimal digits (0-9, A-F).</source>
        <translation>打印机的 MAC 地址不完整：六个字节中的每一个都需要两位十六进制数字 (0-9、A-F)。</translation>
    </message>
    <message>
        <source>Wake On LAN needs the MAC address of the printer. Enter it, or turn Wake On LAN off.</source>
        <translation>网络唤醒需要打印机的 MAC 地址。请输入该地址，或关闭网络唤醒。</translation>
    </message>
    <message>
        <source>The list "%1" holds more than %2 entries.</source>
        <translation>列表“%1”的条目超过 %2 个。</translation>
    </message>
    <message>
        <source>A name in the list "%1" is longer than %2 bytes.</source>
        <translation>列表“%1”中有名称超过 %2 字节。</translation>
    </message>
    <message>
        <source>"%1" holds a value that cannot be saved.</source>
        <translation>“%1”中有无法保存的值。</translation>
    </message>
    <message>
        <source>IDS_QUEUE_NOT_SET_UP</source>
        <translation>打印队列“%1”尚未设置为保存本实用程序的设置，因此目前无法保存任何内容。请选择“设置…”进行设置；打印服务器可能会要求输入管理员密码。</translation>
    </message>
    <message>
        <source>Shared Folder 1</source>
        <translation>共享文件夹 1</translation>
    </message>
    <message>
        <source>Shared Folder 2</source>
        <translation>共享文件夹 2</translation>
    </message>
    <message>
        <source>Shared Folder 3</source>
        <translation>共享文件夹 3</translation>
    </message>
    <message>
        <source>Shared Folder 4</source>
        <translation>共享文件夹 4</translation>
    </message>
    <message>
        <source>Shared Folder 5</source>
        <translation>共享文件夹 5</translation>
    </message>
    <message>
        <source>Shared Folder 6</source>
        <translation>共享文件夹 6</translation>
    </message>
    <message>
        <source>Shared Folder 7</source>
        <translation>共享文件夹 7</translation>
    </message>
    <message>
        <source>Shared Folder 8</source>
        <translation>共享文件夹 8</translation>
    </message>
    <message>
        <source>Shared Folder 9</source>
        <translation>共享文件夹 9</translation>
    </message>
    <message>
        <source>Shared Folder 10</source>
        <translation>共享文件夹 10</translation>
    </message>
    <message>
        <source>Shared Folder 11</source>
        <translation>共享文件夹 11</translation>
    </message>
    <message>
        <source>Shared Folder 12</source>
        <translation>共享文件夹 12</translation>
    </message>
    <message>
        <source>Shared Folder 13</source>
        <translation>共享文件夹 13</translation>
    </message>
    <message>
        <source>Shared Folder 14</source>
        <translation>共享文件夹 14</translation>
    </message>
    <message>
        <source>Shared Folder 15</source>
        <translation>共享文件夹 15</translation>
    </message>
    <message>
        <source>Shared Folder 16</source>
        <translation>共享文件夹 16</translation>
    </message>
    <message>
        <source>Shared Folder 17</source>
        <translation>共享文件夹 17</translation>
    </message>
    <message>
        <source>Shared Folder 18</source>
        <translation>共享文件夹 18</translation>
    </message>
    <message>
        <source>Shared Folder 19</source>
        <translation>共享文件夹 19</translation>
    </message>
    <message>
        <source>Shared Folder 20</source>
        <translation>共享文件夹 20</translation>
    </message>
    <message>
        <source>Shared Folder 21</source>
        <translation>共享文件夹 21</translation>
    </message>
    <message>
        <source>Shared Folder 22</source>
        <translation>共享文件夹 22</translation>
    </message>
    <message>
        <source>Shared Folder 23</source>
        <translation>共享文件夹 23</translation>
    </message>
    <message>
        <source>Shared Folder 24</source>
        <translation>共享文件夹 24</translation>
    </message>
    <message>
        <source>Shared Folder 25</source>
        <translation>共享文件夹 25</translation>
    </message>
    <message>
        <source>Shared Folder 26</source>
        <translation>共享文件夹 26</translation>
    </message>
    <message>
        <source>Shared Folder 27</source>
        <translation>共享文件夹 27</translation>
    </message>
    <message>
        <source>Shared Folder 28</source>
        <translation>共享文件夹 28</translation>
    </message>
    <message>
        <source>Shared Folder 29</source>
        <translation>共享文件夹 29</translation>
    </message>
    <message>
        <source>Shared Folder 30</source>
        <translation>共享文件夹 30</translation>
    </message>
    <message>
        <source>Shared Folder 31</source>
        <translation>共享文件夹 31</translation>
    </message>
    <message>
        <source>Shared Folder 32</source>
        <translation>共享文件夹 32</translation>
    </message>
    <message>
        <source>Shared Folder 33</source>
        <translation>共享文件夹 33</translation>
    </message>
    <message>
        <source>Shared Folder 34</source>
        <translation>共享文件夹 34</translation>
    </message>
    <message>
        <source>Shared Folder 35</source>
        <translation>共享文件夹 35</translation>
    </message>
    <message>
        <source>Shared Folder 36</source>
        <translation>共享文件夹 36</translation>
    </message>
    <message>
        <source>Shared Folder 37</source>
        <translation>共享文件夹 37</translation>
    </message>
    <message>
        <source>Shared Folder 38</source>
        <translation>共享文件夹 38</translation>
    </message>
    <message>
        <source>Shared Folder 39</source>
        <translation>共享文件夹 39</translation>
    </message>
    <message>
        <source>Shared Folder 40</source>
        <translation>共享文件夹 40</translation>
    </message>
    <message>
        <source>Shared Folder 41</source>
        <translation>共享文件夹 41</translation>
    </message>
    <message>
        <source>Shared Folder 42</source>
        <translation>共享文件夹 42</translation>
    </message>
    <message>
        <source>Shared Folder 43</source>
        <translation>共享文件夹 43</translation>
    </message>
    <message>
        <source>Shared Folder 44</source>
        <translation>共享文件夹 44</translation>
    </message>
    <message>
        <source>Shared Folder 45</source>
        <translation>共享文件夹 45</translation>
    </message>
    <message>
        <source>Shared Folder 46</source>
        <translation>共享文件夹 46</translation>
    </message>
    <message>
        <source>Shared Folder 47</source>
        <translation>共享文件夹 47</translation>
    </message>
    <message>
        <source>Shared Folder 48</source>
        <translation>共享文件夹 48</translation>
    </message>
    <message>
        <source>Shared Folder 49</source>
        <translation>共享文件夹 49</translation>
    </message>
    <message>
        <source>Shared Folder 50</source>
        <translation>共享文件夹 50</translation>
    </message>
    <message>
        <source>Shared Folder 51</source>
        <translation>共享文件夹 51</translation>
    </message>
    <message>
        <source>Shared Folder 52</source>
        <translation>共享文件夹 52</translation>
    </message>
    <message>
        <source>Shared Folder 53</source>
        <translation>共享文件夹 53</translation>
    </message>
    <message>
        <source>Shared Folder 54</source>
        <translation>共享文件夹 54</translation>
    </message>
    <message>
        <source>Shared Folder 55</source>
        <translation>共享文件夹 55</translation>
    </message>
    <message>
        <source>Shared Folder 56</source>
        <translation>共享文件夹 56</translation>
    </message>
    <message>
        <source>Shared Folder 57</source>
        <translation>共享文件夹 57</translation>
    </message>
    <message>
        <source>Shared Folder 58</source>
        <translation>共享文件夹 58</translation>
    </message>
    <message>
        <source>Shared Folder 59</source>
        <translation>共享文件夹 59</translation>
    </message>
    <message>
        <source>Shared Folder 60</source>
        <translation>共享文件夹 60</translation>
    </message>
    <message>
        <source>Shared Folder 61</source>
        <translation>共享文件夹 61</translation>
    </message>
    <message>
        <source>Shared Folder 62</source>
        <translation>共享文件夹 62</translation>
    </message>
    <message>
        <source>Shared Folder 63</source>
        <translation>共享文件夹 63</translation>
    </message>
    <message>
        <source>Shared Folder 64</source>
        <translation>共享文件夹 64</translation>
    </message>
    <message>
        <source>Shared Folder 65</source>
        <translation>共享文件夹 65</translation>
    </message>
    <message>
        <source>Shared Folder 66</source>
        <translation>共享文件夹 66</translation>
    </message>
    <message>
        <source>Shared Folder 67</source>
        <translation>共享文件夹 67</translation>
    </message>
    <message>
        <source>Shared Folder 68</source>
        <translation>共享文件夹 68</translation>
    </message>
    <message>
        <source>Shared Folder 69</source>
        <translation>共享文件夹 69</translation>
    </message>
    <message>
        <source>Shared Folder 70</source>
        <translation>共享文件夹 70</translation>
    </message>
    <message>
        <source>Shared Folder 71</source>
        <translation>共享文件夹 71</translation>
    </message>
    <message>
        <source>Shared Folder 72</source>
        <translation>共享文件夹 72</translation>
    </message>
    <message>
        <source>Shared Folder 73</source>
        <translation>共享文件夹 73</translation>
    </message>
    <message>
        <source>Shared Folder 74</source>
        <translation>共享文件夹 74</translation>
    </message>
    <message>
        <source>Shared Folder 75</source>
        <translation>共享文件夹 75</translation>
    </message>
    <message>
        <source>Shared Folder 76</source>
        <translation>共享文件夹 76</translation>
    </message>
    <message>
        <source>Shared Folder 77</source>
        <translation>共享文件夹 77</translation>
    </message>
    <message>
        <source>Shared Folder 78</source>
        <translation>共享文件夹 78</translation>
    </message>
    <message>
        <source>Shared Folder 79</source>
        <translation>共享文件夹 79</translation>
    </message>
    <message>
        <source>Shared Folder 80</source>
        <translation>共享文件夹 80</translation>
    </message>
    <message>
        <source>Shared Folder 81</source>
        <translation>共享文件夹 81</translation>
    </message>
    <message>
        <source>Shared Folder 82</source>
        <translation>共享文件夹 82</translation>
    </message>
    <message>
        <source>Shared Folder 83</source>
        <translation>共享文件夹 83</translation>
    </message>
    <message>
        <source>Shared Folder 84</source>
        <translation>共享文件夹 84</translation>
    </message>
    <message>
        <source>Shared Folder 85</source>
        <translation>共享文件夹 85</translation>
    </message>
    <message>
        <source>Shared Folder 86</source>
        <translation>共享文件夹 86</translation>
    </message>
    <message>
        <source>Shared Folder 87</source>
        <translation>共享文件夹 87</translation>
    </message>
    <message>
        <source>Shared Folder 88</source>
        <translation>共享文件夹 88</translation>
    </message>
    <message>
        <source>Shared Folder 89</source>
        <translation>共享文件夹 89</translation>
    </message>
    <message>
        <source>Shared Folder 90</source>
        <translation>共享文件夹 90</translation>
    </message>
    <message>
        <source>Shared Folder 91</source>
        <translation>共享文件夹 91</translation>
    </message>
    <message>
        <source>Shared Folder 92</source>
        <translation>共享文件夹 92</translation>
    </message>
    <message>
        <source>Shared Folder 93</source>
        <translation>共享文件夹 93</translation>
    </message>
    <message>
        <source>Shared Folder 94</source>
        <translation>共享文件夹 94</translation>
    </message>
    <message>
        <source>Shared Folder 95</source>
        <translation>共享文件夹 95</translation>
    </message>
    <message>
        <source>Shared Folder 96</source>
        <translation>共享文件夹 96</translation>
    </message>
    <message>
        <source>Shared Folder 97</source>
        <translation>共享文件夹 97</translation>
    </message>
    <message>
        <source>Shared Folder 98</source>
        <translation>共享文件夹 98</translation>
    </message>
    <message>
        <source>Shared Folder 99</source>
        <translation>共享文件夹 99</translation>
    </message>
    <message>
        <source>Shared Folder 100</source>
        <translation>共享文件夹 100</translation>
    </message>
    <message>
        <source>Choose a Print Queue</source>
        <translation>选择打印队列</translation>
    </message>
    <message>
        <source>Choose the print queue whose printer settings you want to change.</source>
        <translation>请选择要更改其打印机设置的打印队列。</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>筛选(&amp;F):</translation>
    </message>
    <message>
        <source>Name, description, make or model</source>
        <translation>名称、描述、制造商或型号</translation>
    </message>
    <message>
        <source>Print queues</source>
        <translation>打印队列</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>队列</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Make and Model</source>
        <translation>制造商和型号</translation>
    </message>
    <message>
        <source>Utility</source>
        <translation>实用程序</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>已设置</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Damaged: repair it</source>
        <translation>已损坏：需要修复</translation>
    </message>
    <message>
        <source>Asking the print server for its queues...</source>
        <translation>正在向打印服务器查询其队列...</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached. Check that it is running, then try again.</source>
        <translation>无法连接打印服务器 %1。请确认它正在运行，然后重试。</translation>
    </message>
    <message>
        <source>The print server %1 has no print queues. Add a printer, then try again.</source>
        <translation>打印服务器 %1 没有打印队列。请添加打印机，然后重试。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Password Required</source>
        <translation>需要密码</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password to change the queue &quot;%2&quot;.</source>
        <translation>打印服务器 %1 要求提供用户名和密码才能更改队列“%2”。</translation>
    </message>
    <message>
        <source>The print server %1 asks for a user name and password.</source>
        <translation>打印服务器 %1 要求提供用户名和密码。</translation>
    </message>
    <message>
        <source>The user name or password was not accepted. Try again.</source>
        <translation>用户名或密码未被接受。请重试。</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>用户名(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P):</translation>
    </message>
    <message>
        <source>Loading settings...</source>
        <translation>正在载入设置...</translation>
    </message>
    <message>
        <source>Saving settings...</source>
        <translation>正在保存设置...</translation>
    </message>
    <message>
        <source>Setting up the queue...</source>
        <translation>正在设置队列...</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>The print server %1 has no print queue "%2".</source>
        <translation>打印服务器 %1 上没有打印队列“%2”。</translation>
    </message>
    <message>
        <source>The print queue "%1" has no PPD, so it keeps no printer settings.</source>
        <translation>打印队列“%1”没有 PPD，因此无法保存打印机设置。</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" cannot be read, so its settings cannot be shown or saved.</source>
        <translation>无法读取打印队列“%1”的 PPD，因此无法显示或保存其设置。</translation>
    </message>
    <message>
        <source>The print queue "%1" was not set up: the print server did not accept the user name and password.</source>
        <translation>未设置打印队列“%1”：打印服务器不接受该用户名和密码。</translation>
    </message>
    <message>
        <source>The print server %1 lacks the utility's driver filter, so its queues cannot be set up. Install the utility on the print server first.</source>
        <translation>打印服务器 %1 缺少本实用程序的驱动程序过滤器，因此无法设置其队列。请先在打印服务器上安装本实用程序。</translation>
    </message>
    <message>
        <source>You may not change this queue's settings: the print queue "%1" names who may save them. They are shown read-only.</source>
        <translation>您不能更改此队列的设置：打印队列“%1”指定了可以保存设置的用户。设置以只读方式显示。</translation>
    </message>
    <message>
        <source>The print queue "%1" could not be set up: %2</source>
        <translation>无法设置打印队列“%1”：%2</translation>
    </message>
    <message>
        <source>The print server refused the settings (%1). Nothing was saved.</source>
        <translation>打印服务器拒绝了这些设置（%1）。未保存任何内容。</translation>
    </message>
    <message>
        <source>The print server stopped answering while the settings were saved. Whether they arrived shows when the window is opened again.</source>
        <translation>保存设置时打印服务器停止了响应。再次打开窗口即可看到设置是否已送达。</translation>
    </message>
    <message>
        <source>The print server ended update job %1 before it stored the settings, so nothing was saved. Check the print queue on the server, then try again.</source>
        <translation>打印服务器在保存设置之前结束了更新作业 %1，因此未保存任何内容。请检查服务器上的打印队列，然后重试。</translation>
    </message>
    <message>
        <source>Update job %1 did not end in time; the print queue may be paused. The settings are stored when the queue runs again, unless the job is cancelled.</source>
        <translation>更新作业 %1 未能及时结束，打印队列可能已暂停。除非作业被取消，否则队列恢复运行时将保存这些设置。</translation>
    </message>
    <message>
        <source>Update job %1 ended, but the queue's PPD does not hold every setting (%2). Try again.</source>
        <translation>更新作业 %1 已结束，但队列的 PPD 未包含全部设置（%2）。请重试。</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" was damaged while the settings were stored. Choose "Repair…" to rebuild it, then save.</source>
        <translation>保存设置时打印队列“%1”的 PPD 已损坏。请选择“修复…”重建它，然后保存。</translation>
    </message>
    <message>
        <source>The settings were sent, but the queue's PPD could not be read back to check them. Open the window again to see what is stored.</source>
        <translation>设置已发送，但无法读回队列的 PPD 进行核对。请再次打开窗口查看已保存的内容。</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>修复…</translation>
    </message>
    <message>
        <source>The PPD of the print queue "%1" is damaged, so its settings cannot be shown or saved. Choose "Repair…" to rebuild it from the queue's driver with the settings it still holds.</source>
        <translation>打印队列“%1”的 PPD 已损坏，无法显示或保存其设置。请选择“修复…”，用该队列的驱动程序重建它，并保留其中仍可读取的设置。</translation>
    </message>
    <message>
        <source>The print server stopped answering, so whether the print queue "%1" was changed is not known. Try again once the server answers: only what is not done yet is done again.</source>
        <translation>打印服务器已停止响应，无法确定打印队列“%1”是否已更改。请在服务器响应后重试：只会执行尚未完成的部分。</translation>
    </message>
    <message>
        <source>The print server has no driver for "%2", the printer of the queue "%1", so its PPD cannot be rebuilt. A print administrator can give the queue its driver (lpadmin -m), then set it up.</source>
        <translation>打印服务器没有“%2”（队列“%1”的打印机）的驱动程序，因此无法重建其 PPD。打印管理员可以为该队列指定驱动程序（lpadmin -m），然后再设置它。</translation>
    </message>
    <message>
        <source>Update job %1 ended, then a later save to this print queue (update job %2) replaced its settings. Open the window again to see what is stored.</source>
        <translation>更新作业 %1 已结束，随后对此打印队列的另一次保存（更新作业 %2）替换了它的设置。请重新打开窗口查看当前保存的内容。</translation>
    </message>
    <message>
        <source>Discard the changes to the settings?</source>
        <translation>放弃对设置的更改吗?</translation>
    </message>
    <message>
        <source>They were not saved to the print queue.</source>
        <translation>这些更改尚未保存到打印队列。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>It may hold the letters A-Z and a-z, the digits 0-9 and these characters: %1</source>
        <translation>可以包含字母 A-Z 和 a-z、数字 0-9 以及以下字符：%1</translation>
    </message>
    <message>
        <source>The IP address of the printer is empty. Enter it, then try again.</source>
        <translation>打印机的 IP 地址为空。请输入后重试。</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMP community name may be wrong.</source>
        <translation>位于 %1 的打印机在查询%2时没有应答。IP 地址或 SNMP 团体名称可能有误。</translation>
    </message>
    <message>
        <source>The printer at %1 answered with an error when asked for %2. It may not keep this information.</source>
        <translation>位于 %1 的打印机在查询%2时返回了错误。它可能不保存此信息。</translation>
    </message>
    <message>
        <source>The printer at %1 sent an answer that cannot be read when asked for %2.</source>
        <translation>位于 %1 的打印机在查询%2时发送了无法读取的应答。</translation>
    </message>
    <message>
        <source>its MAC address</source>
        <translation>其 MAC 地址</translation>
    </message>
    <message>
        <source>its shared folders</source>
        <translation>其共享文件夹</translation>
    </message>
    <message>
        <source>its forms</source>
        <translation>其表单</translation>
    </message>
    <message>
        <source>its barcode area definitions</source>
        <translation>其条形码区域定义</translation>
    </message>
    <message>
        <source>its color profiles</source>
        <translation>其颜色配置文件</translation>
    </message>
    <message>
        <source>Ask the printer at this IP address for its MAC address, shared folders, forms, barcode area definitions and color profiles.</source>
        <translation>向此 IP 地址的打印机查询其 MAC 地址、共享文件夹、表单、条形码区域定义和颜色配置文件。</translation>
    </message>
    <message>
        <source>Ask the printer for this list.</source>
        <translation>向打印机查询此列表。</translation>
    </message>
    <message>
        <source>Empty this list. The queue keeps its stored list until you choose OK.</source>
        <translation>清空此列表。在您选择“确定”之前，队列保留其已存储的列表。</translation>
    </message>
    <message>
        <source>Also offer each user's personal folder. The printer allows it when its administrator login mode is on.</source>
        <translation>同时提供每个用户的个人文件夹。打印机的管理员登录模式开启时可用。</translation>
    </message>
    <message>
        <source>Wake the printer also when it is in another network, behind a router.</source>
        <translation>打印机位于路由器后的其他网络中时也将其唤醒。</translation>
    </message>
    <message>
        <source>Drop the registered folders?</source>
        <translation>移除已登记的文件夹吗?</translation>
    </message>
    <message>
        <source>The default folders take their place. The queue keeps its stored folders until you choose OK.</source>
        <translation>将以默认文件夹代替。在您选择“确定”之前，队列保留其已存储的文件夹。</translation>
    </message>
    <message>
        <source>No queue matches the filter.</source>
        <translation>没有与筛选条件匹配的队列。</translation>
    </message>
    <message>
        <source>The print queue "%1" is stopped: settings saved now are stored only once it runs again.</source>
        <translation>打印队列“%1”已停止：现在保存的设置要等队列恢复运行后才会存储。</translation>
    </message>
    <message>
        <source>No printer address is stored for the queue "%1". It prints to %2.</source>
        <translation>队列“%1”未存储打印机地址。它打印到 %2。</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Other Server…</source>
        <translation>其他服务器…</translation>
    </message>
    <message>
        <source>Connect to a Print Server</source>
        <translation>连接到打印服务器</translation>
    </message>
    <message>
        <source>Print server (host or host:port):</source>
        <translation>打印服务器（主机或 主机:端口）：</translation>
    </message>
    <message>
        <source>"%1" names no print server. Enter a host name or address, with a port if it is not 631.</source>
        <translation>“%1”不是打印服务器。请输入主机名或地址；端口不是 631 时请一并输入。</translation>
    </message>
    <message>
        <source>The printer at %1 did not answer when asked for %2. The IP address or the SNMPv3 privacy passphrase may be wrong.</source>
        <translation>位于 %1 的打印机在查询%2时没有响应。IP 地址或 SNMPv3 加密密码短语可能有误。</translation>
    </message>
    <message>
        <source>The printer at %1 has no SNMPv3 user of this name (asked for %2). Check the user name under SNMP Security.</source>
        <translation>位于 %1 的打印机没有此名称的 SNMPv3 用户（查询%2时）。请在 SNMP 安全性中检查用户名。</translation>
    </message>
    <message>
        <source>The printer at %1 refused the authentication passphrase of the SNMPv3 user when asked for %2. Enter it again under SNMP Security.</source>
        <translation>位于 %1 的打印机在查询%2时拒绝了 SNMPv3 用户的认证密码短语。请在 SNMP 安全性中重新输入。</translation>
    </message>
    <message>
        <source>The printer at %1 does not accept the SNMPv3 user with privacy as chosen (asked for %2). Check the privacy protocol under SNMP Security.</source>
        <translation>位于 %1 的打印机不接受按所选加密设置的 SNMPv3 用户（查询%2时）。请在 SNMP 安全性中检查加密协议。</translation>
    </message>
    <message>
        <source>No host is known as "%1". Check the printer's IP address.</source>
        <translation>找不到名为“%1”的主机。请检查打印机的 IP 地址。</translation>
    </message>
    <message>
        <source>SNMP Security…</source>
        <translation>SNMP 安全性…</translation>
    </message>
    <message>
        <source>SNMP v1 with the community name</source>
        <translation>使用团体名称的 SNMP v1</translation>
    </message>
    <message>
        <source>SNMPv3 with a user</source>
        <translation>使用用户的 SNMPv3</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>用户名:</translation>
    </message>
    <message>
        <source>Authentication:</source>
        <translation>认证:</translation>
    </message>
    <message>
        <source>Authentication passphrase:</source>
        <translation>认证密码短语:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>加密:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Privacy passphrase:</source>
        <translation>加密密码短语:</translation>
    </message>
    <message>
        <source>Remember in the keyring</source>
        <translation>保存在密钥环中</translation>
    </message>
    <message>
        <source>The SNMPv3 user name cannot contain "%1".</source>
        <translation>SNMPv3 用户名不能包含“%1”。</translation>
    </message>
    <message>
        <source>Get Printer Info asks the printer at %2 as the SNMPv3 user %1. Enter the user's passphrases.</source>
        <translation>获取打印机信息将以 SNMPv3 用户 %1 的身份查询位于 %2 的打印机。请输入该用户的密码短语。</translation>
    </message>
    <message>
        <source>At least %1 characters</source>
        <translation>至少 %1 个字符</translation>
    </message>
    <message>
        <source>The passphrases could not be kept in the keyring: no desktop secret store answered. They are used until the window closes.</source>
        <translation>无法将密码短语保存在密钥环中：桌面的密钥存储没有响应。在窗口关闭之前仍会使用这些密码短语。</translation>
    </message>
</context>
</TS>
